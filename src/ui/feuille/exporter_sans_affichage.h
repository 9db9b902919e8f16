#pragma once

/// The window program's own command line: "exporter", with the formats that need Qt, and without a
/// display. @returns the exit code
int exporter_sans_affichage(int& argc, char** argv);

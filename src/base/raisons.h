#pragma once

#include <string>

/// What a system's error number means, in French.
std::string raison_systeme(int numero);

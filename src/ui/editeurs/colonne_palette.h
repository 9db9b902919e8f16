#pragma once

#include <QLabel>
#include <QScrollArea>
#include <QStackedWidget>

class Foutil;

/// The palette's place in an editor: the palette itself or, while another editor has it, a word in
/// its place, so that the drawing beside it stays where it is. Nothing while the palette floats.
class ColonnePalette final : public QStackedWidget {
public:
    explicit ColonnePalette(Foutil& outils);

    /// The editor is the one that is used.
    void accueillir();
    /// The palette went elsewhere.
    void suivre();

private:
    Foutil& outils_;
    QScrollArea place_;
    QLabel ailleurs_;
};

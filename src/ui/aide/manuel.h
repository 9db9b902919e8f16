#pragma once

#include <QString>
#include <QUrl>

#include <span>

class QTextDocument;
class QWidget;

/// A page of the manual: a Markdown file among the resources. A new page needs its file, its line
/// in the table of manuel.cpp and its name in CMakeLists.txt.
struct PageManuel {
    const char* fichier;  ///< without its extension
    const char* titre;    ///< as the contents list shows it
    const char* fenetres; ///< names of the windows that it describes, between blanks
};

/// In the order of the contents list.
std::span<const PageManuel> pages_du_manuel();
/// The page for a control: that of its window, else of the window which that belongs to, else the
/// first one. @returns an index into pages_du_manuel()
int page_de(const QWidget* controle);
QUrl adresse_de(const PageManuel& page);
/// The page's source text.
QString texte_de(const PageManuel& page);

/// Capitals and accents do not count in a search. Keeps the text's length.
QString simplifie(const QString& texte);

/// Gives a page just loaded its margins, its ruled tables and its examples on a grey ground.
void habiller(QTextDocument& document, const QWidget& fenetre);

#include "ui/aide/manuel.h"

#include <QFile>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>
#include <QWidget>

namespace {

constexpr PageManuel pages[] = {
    {"prise-en-main", "Prise en main", ""},
    {"premier-match", "Un match complet, pas à pas", ""},
    {"fenetre-principale", "La fenêtre principale", " Sim1 "},
    {"verdict", "Le verdict du match", ""},
    {"analyse", "L'analyse du match", " Analyse "},
    {"options", "Les options et les projets", " FOption Ouvrir "},
    {"telecommande", "La télécommande", " Télécommande "},
    {"editeurs", "Les éditeurs", " Foutil dessinTable dessinRobot nouveauProjet "},
    {"trajets", "L'éditeur de trajets", " dessinTrajet copieTrajet differenceTrajet "},
    {"generation", "La génération PICBASIC", " Dialog OuvGeneration Visualiser "},
    {"fichiers", "Les fichiers de configuration", ""},
    {"messages", "Messages et dépannage", " message question "},
    {"sauvegardes", "Sauvegardes et pannes", " Restauration "},
    {"raccourcis", "Les raccourcis clavier", ""},
    {"limites", "Ce que la simulation ne montre pas", ""},
    {"ligne-de-commande", "La ligne de commande", ""},
};

void habiller_table(QTextTable& table, const QPalette& couleurs) {
    QTextTableFormat format = table.format();
    format.setBorder(1);
    format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
    format.setBorderBrush(couleurs.mid());
    format.setBorderCollapse(true);
    format.setCellSpacing(0);
    format.setCellPadding(5);
    format.setTopMargin(6);
    format.setBottomMargin(10);
    table.setFormat(format);
    for (int colonne = 0; colonne < table.columns(); ++colonne) {
        QTextTableCell cellule = table.cellAt(0, colonne);
        QTextCharFormat entete = cellule.format();
        entete.setBackground(couleurs.alternateBase());
        cellule.setFormat(entete);
    }
}

QTextBlockFormat format_du_bloc(const QTextBlock& bloc, const QPalette& couleurs) {
    QTextBlockFormat format;
    const bool exemple = bloc.blockFormat().hasProperty(QTextFormat::BlockCodeFence);
    if (exemple) {
        format.setBackground(couleurs.alternateBase());
        format.setLeftMargin(14);
    } else {
        format.setLineHeight(118, QTextBlockFormat::ProportionalHeight);
    }
    return format;
}

} // namespace

std::span<const PageManuel> pages_du_manuel() {
    return pages;
}

int page_de(const QWidget* controle) {
    for (const QWidget* w = controle; w != nullptr; w = w->window()->parentWidget()) {
        const QString nom = " " + w->window()->objectName() + " ";
        for (int i = 0; i < static_cast<int>(std::size(pages)); ++i)
            if (nom.size() > 2 && QString(pages[i].fenetres).contains(nom))
                return i;
    }
    return 0;
}

QUrl adresse_de(const PageManuel& page) {
    return {QString("qrc:/manuel/%1.md").arg(page.fichier)};
}

QString texte_de(const PageManuel& page) {
    QFile fichier(QString(":/manuel/%1.md").arg(page.fichier));
    return fichier.open(QIODevice::ReadOnly) ? QString::fromUtf8(fichier.readAll()) : QString();
}

QString simplifie(const QString& texte) {
    QString simple = texte;
    for (QChar& c : simple) {
        if (const QString parties = c.decomposition(); !parties.isEmpty())
            c = parties[0];
        c = c.toLower();
    }
    return simple;
}

void habiller(QTextDocument& document, const QWidget& fenetre) {
    const QPalette& couleurs = fenetre.palette();
    document.setDocumentMargin(16);
    for (QTextBlock bloc = document.begin(); bloc.isValid(); bloc = bloc.next())
        QTextCursor(bloc).mergeBlockFormat(format_du_bloc(bloc, couleurs));
    for (QTextFrame* cadre : document.rootFrame()->childFrames())
        if (auto* table = qobject_cast<QTextTable*>(cadre))
            habiller_table(*table, couleurs);
}

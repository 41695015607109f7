#pragma once

#include <QtCore/QList>
#include <QtCore/QRectF>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <variant>

namespace kelvo::guida {

/// A heading: 1 begins a chapter, 2 a section, 3 a part of one that the contents do not list.
struct Titolo {
    int livello = 1;
    QString testo;
    QString ancora;    ///< what links lead to; empty for none
    QString finestra;  ///< window of the program that the section tells of; empty for none
    QString numero;    ///< "4" or "4.2", empty below that
};
struct Paragrafo {
    QString testo;
};
struct Elenco {
    bool numerato = false;
    QStringList voci;
};
struct Tabella {
    QList<Qt::Alignment> lati;  ///< one a column
    QStringList testata;
    QList<QStringList> righe;
};
/// Lines in letters of one width.
struct Codice {
    QString testo;
};
struct Formula {
    QString sorgente;
};
/// A picture of the program, or a drawing.
struct Figura {
    QString immagine;                     ///< name without extension
    QString didascalia;                   ///< marked text
    double larghezza = 1.0;               ///< share of the width of the text
    bool intera = false;                  ///< the whole main window, not the window in its work area alone
    QRectF ritaglio{0.0, 0.0, 1.0, 1.0};  ///< part of the picture, in shares of it
    int numero = 0;                       ///< from 1
};
/// A remark that is set off from the text.
struct Avviso {
    QString testo;
};
struct NuovaPagina {};

using Blocco = std::variant<Titolo, Paragrafo, Elenco, Tabella, Codice, Formula, Figura, Avviso, NuovaPagina>;

/// A document as its sources tell it. Texts are marked: **strong**, *slanted*, `letters of one width`, x~2~, x^2^,
/// [words](#anchor); a link without words reads as the number of what it leads to.
struct Documento {
    QString titolo;
    QString sottotitolo;
    QString argomento;  ///< what it is about, for whoever looks at the properties of the file
    bool copertina = false;
    bool indice = false;
    bool capitoliAPagina = false;  ///< chapters begin on a page of their own
    bool figureNumerate = false;
    QList<Blocco> blocchi;
};

/// The headings of chapters and sections get their numbers, pictures theirs.
void numera(Documento& documento);

/// Anchors that links lead to and no heading bears, each once.
QStringList legamiRotti(const Documento& documento);

/// Names of the pictures that the document asks for, with the part of them that it wants.
struct ImmagineChiesta {
    QString nome;
    bool intera = false;
};
QList<ImmagineChiesta> immaginiChieste(const Documento& documento);

}  // namespace kelvo::guida

#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QTextLayout>
#include <memory>

#include "guida/stile.h"

namespace kelvo::guida {

/// How marked text is set.
struct Veste {
    double punti = corpo::testo;
    bool forte = false;
    bool leggera = false;
    QColor colore = qcolore(tinta::inchiostro);
    Qt::Alignment lato = Qt::AlignLeft;
    QColor legami = qcolore(tinta::principale);
};

/// What links without words read as: number of a chapter or a section by its anchor.
using Numeri = QHash<QString, QString>;

/// Marked text in lines of a width. `ancora` makes the text a place that links lead to.
std::shared_ptr<QTextLayout> componi(const QString& marcato, const Veste& veste, double larghezza,
                                     const Numeri& numeri = {}, const QString& ancora = {});
/// Text without marks, each line as it is.
std::shared_ptr<QTextLayout> componiNudo(const QString& testo, const QFont& carattere, const QColor& colore,
                                         double larghezza, Qt::Alignment lato = Qt::AlignLeft);
/// The words of marked text.
QString senzaMarche(const QString& marcato, const Numeri& numeri = {});
/// Height of the lines from `da` to before `a`.
double altezza(const QTextLayout& testo, int da, int a);
double altezza(const QTextLayout& testo);
/// Width of the widest line.
double larghezza(const QTextLayout& testo);
void dipingi(QPainter& pennello, const QTextLayout& testo, int da, int a, QPointF angolo);

}  // namespace kelvo::guida

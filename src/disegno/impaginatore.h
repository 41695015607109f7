#pragma once

#include <QtCore/QString>
#include <QtGui/QFont>
#include <memory>
#include <utility>
#include <vector>

#include "disegno/impaginazione.h"

namespace kelvo::disegno {

/// Words in one type, broken to a width.
struct Parole {
    QString testo;
    QString inizio;       ///< stands before `testo`, in the strong face
    double corpo = 10.0;  ///< points
    bool grassetto = false;
    QColor colore;
    Qt::Alignment lato = Qt::AlignLeft;
};

/// Faces as a page has them, by their size in points: without the fitting to a screen's pixels.
QFont caratterePagina(double punti, bool grassetto);
/// The words in lines of a width.
std::shared_ptr<QTextLayout> componi(const Parole& parole, double larghezza);
/// Height of the lines from `da` to before `a`.
double altezzaRighe(const QTextLayout& testo, int da, int a);

/// Where on the pages the next thing goes. All measures are units of a page.
class Impaginatore {
public:
    /// `corpo`: the room between head and foot.
    explicit Impaginatore(const QRectF& corpo);

    const QRectF& corpo() const { return corpo_; }
    double y() const { return y_; }
    /// Room left on the page.
    double resto() const { return corpo_.bottom() - y_; }
    /// Nothing stands on the page yet.
    bool vuota() const { return y_ <= corpo_.top(); }
    PaginaImpaginata& pagina() { return pagine_.back(); }
    void nuovaPagina();
    /// Goes down; what is left of a gap at the foot does not go on to the next page.
    void scendi(double quanto) { y_ += quanto; }
    /// Leaves a gap unless the page is empty.
    void stacca(double quanto) { y_ += vuota() ? 0.0 : quanto; }
    /// Lines go down the page and on to the next, at `x` from the left edge of the room.
    void scorri(const std::shared_ptr<QTextLayout>& testo, double x);
    std::vector<PaginaImpaginata>& tutte() { return pagine_; }
    std::vector<PaginaImpaginata> prendi() { return std::move(pagine_); }

private:
    QRectF corpo_;
    double y_;
    std::vector<PaginaImpaginata> pagine_;
};

/// Lays out a table from where the page stands.
void impaginaTabella(Impaginatore& dove, const DocumentoPagine::Tabella& tabella);
/// Room that a table asks for to begin on a page: its headings and the first row, of a row higher than a page a part.
double inizioTabella(const QRectF& corpo, const DocumentoPagine::Tabella& tabella);

}  // namespace kelvo::disegno

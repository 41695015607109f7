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

/// A sheet and the room on it between head and foot.
struct Foglio {
    QSizeF misura;
    QRectF corpo;
};

/// Where on the pages the next thing goes. All measures are units of a page.
class Impaginatore {
public:
    Impaginatore(const Foglio& ritto, const Foglio& coricato);

    const QRectF& corpo() const { return foglio_.corpo; }
    /// The page lies on its long side.
    bool coricata() const { return foglio_.misura.width() > foglio_.misura.height(); }
    /// What follows stands on pages that lie, or do not: on the one at hand if nothing stands there yet, else on a new
    /// one where it is not so already.
    void volta(bool coricata);
    double y() const { return y_; }
    /// Room left on the page.
    double resto() const { return corpo().bottom() - y_; }
    /// Nothing stands on the page yet.
    bool vuota() const { return y_ <= corpo().top(); }
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
    Foglio ritto_;
    Foglio coricato_;
    Foglio foglio_;  ///< of the page at hand
    double y_;
    std::vector<PaginaImpaginata> pagine_;
};

/// Lays out a table from where the page stands.
void impaginaTabella(Impaginatore& dove, const DocumentoPagine::Tabella& tabella);
/// Room that a table asks for to begin on a page: its headings and the first row, of a row higher than a page a part.
double inizioTabella(const QRectF& corpo, const DocumentoPagine::Tabella& tabella);

/// The table, in a type that reads well, is wider than the room.
bool tabellaLarga(const DocumentoPagine::Tabella& tabella, double larghezza);

}  // namespace kelvo::disegno

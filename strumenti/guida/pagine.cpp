#include "guida/pagine.h"

#include <deque>

#include "guida/stile.h"

namespace kelvo::guida {

namespace {

constexpr double riducibile = 0.72;  ///< a picture may shrink to so much of its height where that saves a page's foot

class Disposizione {
public:
    explicit Disposizione(const std::vector<Pezzo>& pezzi) : pezzi_(pezzi) { nuova(); }

    Impaginato tutte() {
        for (std::size_t i = 0; i < pezzi_.size(); ++i) {
            uno(i);
        }
        scarica();
        return std::move(fatto_);
    }

private:
    double resto() const { return altezzaTesto - y_; }
    bool vuota() const { return fatto_.pagine.back().posti.empty(); }

    void nuova() {
        Pagina pagina;
        if (!fatto_.pagine.empty()) {
            pagina.capitolo = fatto_.pagine.back().capitolo;
        }
        fatto_.pagine.push_back(std::move(pagina));
        y_ = 0.0;
        while (!rimandate_.empty() && rimandate_.front()->alto <= resto()) {
            const Pezzo* prima = rimandate_.front();
            rimandate_.pop_front();
            posa(*prima);
        }
    }

    /// The pictures that wait for a page get theirs: at the end of a chapter.
    void scarica() {
        while (!rimandate_.empty()) {
            nuova();
        }
    }

    void posa(const Pezzo& pezzo) {
        if (vuota() && pezzo.testata != nullptr) {
            posa(*pezzo.testata);
        }
        y_ += vuota() ? 0.0 : pezzo.prima;
        const double y = margineAlto + y_;
        fatto_.pagine.back().posti.push_back({QPointF(margineLato, y), pezzo.dipingi});
        y_ += pezzo.alto;
        if (pezzo.titolo != nullptr) {
            if (pezzo.titolo->livello == 1) {
                fatto_.pagine.back().capitolo = pezzo.titolo->testo;
            }
            fatto_.voci.push_back({pezzo.titolo, static_cast<int>(fatto_.pagine.size()) - 1, y});
        }
    }

    /// Height from a piece on that stays together. A picture below a heading may go on past the text that follows it,
    /// but not past another heading.
    double unito(std::size_t i) const {
        double alto = pezzi_[i].alto + (vuota() ? 0.0 : pezzi_[i].prima);
        bool legato = pezzi_[i].conSeguente;
        while (legato && ++i < pezzi_.size()) {
            const bool passa = pezzi_[i].entro && i + 1 < pezzi_.size() && pezzi_[i + 1].titolo == nullptr;
            if (!passa) {
                alto += pezzi_[i].prima + pezzi_[i].alto;
                legato = pezzi_[i].conSeguente;
            }
        }
        return alto;
    }

    void uno(std::size_t i) {
        const Pezzo& pezzo = pezzi_[i];
        if (pezzo.aPagina) {
            scarica();
            if (!vuota()) {
                nuova();
            }
            if (pezzo.titolo != nullptr) {
                posa(pezzo);
            }
            return;
        }
        if (pezzo.entro) {
            figura(pezzo);
            return;
        }
        // What belongs to the piece before stays with it: that one found room for both.
        const bool stretta = unito(i) > resto() && !legato_;
        if (!vuota() && (stretta || pezzo.alto + pezzo.prima > resto())) {
            nuova();
        }
        posa(pezzo);
        legato_ = pezzo.conSeguente;
    }

    void figura(const Pezzo& pezzo) {
        legato_ = false;
        if (rimandate_.empty()) {
            if (pezzo.alto + pezzo.prima <= resto()) {
                posa(pezzo);
                return;
            }
            if (resto() >= pezzo.alto * riducibile) {
                posa(pezzo.entro(resto()));
                return;
            }
        }
        rimandate_.push_back(&pezzo);
    }

    const std::vector<Pezzo>& pezzi_;
    Impaginato fatto_;
    std::deque<const Pezzo*> rimandate_;
    double y_ = 0.0;
    bool legato_ = false;  ///< the piece at hand belongs to the one before
};

}  // namespace

Impaginato impagina(const std::vector<Pezzo>& pezzi) {
    return Disposizione(pezzi).tutte();
}

}  // namespace kelvo::guida

#include <QtGui/QResizeEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>
#include <algorithm>
#include <numeric>

#include "ui/ModelloGriglia.h"
#include "ui/TestataGriglia.h"
#include "ui/VistaGriglia.h"

namespace kelvo::ui {

namespace {

/// Share of a column that none was told, in twips.
constexpr int pesoComune = 1000;
constexpr int minimaACapo = 120;

/// Divides the room by the weights; no part is smaller than its smallest width, and what that takes the others give.
std::vector<int> dividiSpazio(int spazio, const std::vector<int>& pesi, const std::vector<int>& minime) {
    std::vector<int> parti(pesi.size(), 0);
    std::vector<bool> fissa(pesi.size(), false);
    for (bool mutato = true; mutato;) {
        mutato = false;
        int libero = spazio;
        int peso = 0;
        for (std::size_t i = 0; i < pesi.size(); ++i) {
            libero -= fissa[i] ? minime[i] : 0;
            peso += fissa[i] ? 0 : pesi[i];
        }
        for (std::size_t i = 0; i < pesi.size(); ++i) {
            if (fissa[i] || pesi[i] == 0) {
                continue;
            }
            parti[i] = static_cast<int>(static_cast<long long>(std::max(0, libero)) * pesi[i] / peso);
            if (parti[i] < minime[i]) {
                parti[i] = minime[i];
                fissa[i] = true;
                mutato = true;
            }
        }
    }
    return parti;
}

}  // namespace

void VistaGriglia::disponi() {
    if (inDisposizione_) {
        return;
    }
    inDisposizione_ = true;
    disponiLarghezze();
    disponiTestate();
    disponiAltezze();
    inDisposizione_ = false;
}

void VistaGriglia::disponiLarghezze() {
    const Tabella& tabella = griglia_.tabella();
    const int colonne = tabella.colonne();
    if (minime_.empty()) {
        minime_.assign(static_cast<std::size_t>(colonne), 0);
        for (int c = 0; c < colonne; ++c) {
            int& minima = minime_[static_cast<std::size_t>(c)];
            for (int r = 0; r < tabella.righe(); ++r) {
                minima = std::max(minima, pittore_.larghezza({r, c}));
            }
            minima = griglia_.colonna(c).aCapo ? std::max(minima, minimaACapo) : minima;
        }
    }
    std::vector<int> pesi;
    for (int c = 0; c < colonne; ++c) {
        const int detto = tabella.larghezze[static_cast<std::size_t>(c)];
        pesi.push_back(griglia_.colonna(c).nascosta ? 0 : detto > 0 ? detto : pesoComune);
    }
    const QScrollBar* barra = verticalScrollBar();
    const int spazio = width() - 2 * frameWidth() - (barra->isVisible() ? barra->width() : 0);
    larghezze_ = dividiSpazio(spazio, pesi, minime_);
    for (int c = griglia_.colonneFisse(); c < colonne; ++c) {
        if (pesi[static_cast<std::size_t>(c)] > 0) {
            setColumnWidth(c - griglia_.colonneFisse(), larghezze_[static_cast<std::size_t>(c)]);
        }
    }
}

int VistaGriglia::altezzaFissa(int riga) const {
    int alta = PittoreCelle::altezzaRiga();
    for (int c = 0; c < griglia_.tabella().colonne(); ++c) {
        if (larghezze_[static_cast<std::size_t>(c)] > 0) {
            alta = std::max(alta, pittore_.altezza({riga, c}, larghezze_[static_cast<std::size_t>(c)]));
        }
    }
    return alta;
}

void VistaGriglia::disponiTestate() {
    std::vector<int> alte;
    for (int r = 0; r < std::min(griglia_.righeFisse(), griglia_.tabella().righe()); ++r) {
        alte.push_back(altezzaFissa(r));
    }
    const auto fisse =
        std::min<std::ptrdiff_t>(griglia_.colonneFisse(), static_cast<std::ptrdiff_t>(larghezze_.size()));
    static_cast<TestataGriglia*>(horizontalHeader())->spessori(alte);
    static_cast<TestataGriglia*>(verticalHeader())->spessori({larghezze_.begin(), larghezze_.begin() + fisse});
    updateGeometries();
}

void VistaGriglia::disponiAltezze() {
    verticalHeader()->setDefaultSectionSize(PittoreCelle::altezzaRiga());
    std::vector<int> aCapo;
    for (int c = 0; c < griglia_.tabella().colonne(); ++c) {
        if (griglia_.colonna(c).aCapo && !griglia_.colonna(c).nascosta) {
            aCapo.push_back(c);
        }
    }
    for (int r = griglia_.righeFisse(); !aCapo.empty() && r < griglia_.tabella().righe(); ++r) {
        int alta = PittoreCelle::altezzaRiga();
        for (const int c : aCapo) {
            alta = std::max(alta, pittore_.altezza({r, c}, larghezze_[static_cast<std::size_t>(c)]));
        }
        setRowHeight(r - griglia_.righeFisse(), alta);
    }
    griglia_.righeVisibili = std::max(1, viewport()->height() / PittoreCelle::altezzaRiga());
}

int VistaGriglia::altezzaIntera() const {
    return static_cast<TestataGriglia*>(horizontalHeader())->spessore() + verticalHeader()->length() + 2 * frameWidth();
}

void VistaGriglia::resizeEvent(QResizeEvent* evento) {
    QTableView::resizeEvent(evento);
    disponi();
    mostraRigaAlta();
    scrollContentsBy(0, 0);
}

void VistaGriglia::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    if (!editor_->isHidden()) {
        editor_->setGeometry(visualRect(modello_->indice(griglia_.corrente())).adjusted(0, 0, -1, -1));
    }
}

}  // namespace kelvo::ui

#include <QtGui/QResizeEvent>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <algorithm>
#include <numeric>

#include "ui/ModelloGriglia.h"
#include "ui/TestataGriglia.h"
#include "ui/VistaGriglia.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// Share of a column that none was told, in twips.
constexpr int pesoComune = 1000;
constexpr int minimaACapo = 120;
/// A scroll bar that narrows the room may take away its own reason: the last layout stands.
constexpr int giriMassimi = 3;

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
    // What rounding left over goes to the last column that gives way.
    const int resto = spazio - std::accumulate(parti.begin(), parti.end(), 0);
    for (std::size_t i = pesi.size(); resto > 0 && i-- > 0;) {
        if (pesi[i] > 0 && !fissa[i]) {
            parti[i] += resto;
            break;
        }
    }
    return parti;
}

}  // namespace

int VistaGriglia::spazio() const {
    return viewport()->width() + viewportMargins().left() + viewportMargins().right();
}

void VistaGriglia::disponi() {
    if (inDisposizione_) {
        return;
    }
    inDisposizione_ = true;
    int preso = -1;
    // A scroll bar may come or go with the new measures, and not every time that is told: the room is looked at again.
    for (int giri = 0; preso != spazio() && giri < giriMassimi; ++giri) {
        preso = spazio();
        disponiLarghezze();
        disponiTestate();
        disponiAltezze();
        updateGeometries();
    }
    inDisposizione_ = false;
    if (seguace_ != nullptr) {
        seguace_->disponi();
    }
}

void VistaGriglia::incolonna(VistaGriglia& guida) {
    guida_ = &guida;
    guida.seguace_ = this;
    guida.minime_.clear();
    guida.disponi();
}

int VistaGriglia::colonnaMinima() {
    misuraColonne();
    return minime_.empty() ? 0 : *std::max_element(minime_.begin(), minime_.end());
}

QRect VistaGriglia::posto(Posto cella) const {
    return visualRect(modello_->indice(cella)).translated(viewport()->pos());
}

int VistaGriglia::larghezzaDi(Posto cella) {
    const Cella& contenuto = griglia_.tabella().cella(cella.riga, cella.colonna);
    const auto indice = static_cast<std::size_t>(cella.riga) * static_cast<std::size_t>(griglia_.tabella().colonne()) +
                        static_cast<std::size_t>(cella.colonna);
    Misurata& misurata = misurate_[indice];
    const bool segno = griglia_.ornamento && griglia_.ornamento(cella).segno != OrnamentoCella::Segno::nessuno;
    const bool aCapo = griglia_.colonna(cella.colonna).aCapo;
    if (misurata.larghezza < 0 || misurata.testo != contenuto.testo || misurata.grassetto != contenuto.grassetto ||
        misurata.segno != segno || misurata.aCapo != aCapo) {
        misurata = {contenuto.testo, contenuto.grassetto, segno, aCapo, pittore_.larghezza(cella)};
    }
    return misurata.larghezza;
}

void VistaGriglia::misuraColonne() {
    const Tabella& tabella = griglia_.tabella();
    const int colonne = tabella.colonne();
    if (!minime_.empty()) {
        return;
    }
    const auto celle = static_cast<std::size_t>(tabella.righe()) * static_cast<std::size_t>(colonne);
    if (misurate_.size() != celle) {
        misurate_.assign(celle, {});
    }
    minime_.assign(static_cast<std::size_t>(colonne), 0);
    for (int c = 0; c < colonne; ++c) {
        int& minima = minime_[static_cast<std::size_t>(c)];
        for (int r = 0; r < tabella.righe(); ++r) {
            minima = std::max(minima, larghezzaDi({r, c}));
        }
        minima = griglia_.colonna(c).aCapo ? std::max(minima, minimaACapo) : minima;
    }
    if (seguace_ != nullptr) {
        seguace_->misuraColonne();
        auto prima = static_cast<std::size_t>(griglia_.colonneFisse());
        for (const int altra : seguace_->minime_) {
            if (prima < minime_.size()) {
                minime_[prima] = std::max(minime_[prima], altra);
            }
            ++prima;
        }
    }
}

void VistaGriglia::disponiLarghezze() {
    const Tabella& tabella = griglia_.tabella();
    const int colonne = tabella.colonne();
    misuraColonne();
    std::vector<int> pesi;
    for (int c = 0; c < colonne; ++c) {
        const auto indice = static_cast<std::size_t>(c);
        const int detto = indice < tabella.larghezze.size() ? tabella.larghezze[indice] : 0;
        pesi.push_back(griglia_.colonna(c).nascosta ? 0 : detto > 0 ? detto : pesoComune);
    }
    larghezze_ = dividiSpazio(spazio(), pesi, minime_);
    if (guida_ != nullptr) {
        const auto fisse = static_cast<std::size_t>(guida_->griglia_.colonneFisse());
        for (std::size_t c = 0; c < larghezze_.size() && c + fisse < guida_->larghezze_.size(); ++c) {
            larghezze_[c] = guida_->larghezze_[c + fisse];
        }
    }
    for (int c = griglia_.colonneFisse(); c < colonne; ++c) {
        if (pesi[static_cast<std::size_t>(c)] > 0) {
            setColumnWidth(c - griglia_.colonneFisse(), larghezze_[static_cast<std::size_t>(c)]);
        }
    }
}

int VistaGriglia::altezzaFissa(int riga) const {
    int alta = pittore_.altezzaRiga();
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
}

void VistaGriglia::disponiAltezze() {
    verticalHeader()->setDefaultSectionSize(pittore_.altezzaRiga());
    std::vector<int> aCapo;
    for (int c = 0; c < griglia_.tabella().colonne(); ++c) {
        if (griglia_.colonna(c).aCapo && !griglia_.colonna(c).nascosta) {
            aCapo.push_back(c);
        }
    }
    for (int r = griglia_.righeFisse(); !aCapo.empty() && r < griglia_.tabella().righe(); ++r) {
        int alta = pittore_.altezzaRiga();
        for (const int c : aCapo) {
            alta = std::max(alta, pittore_.altezza({r, c}, larghezze_[static_cast<std::size_t>(c)]));
        }
        setRowHeight(r - griglia_.righeFisse(), alta);
    }
    griglia_.righeVisibili = std::max(1, viewport()->height() / pittore_.altezzaRiga());
}

int VistaGriglia::altezzaIntera() const {
    return static_cast<TestataGriglia*>(horizontalHeader())->spessore() + verticalHeader()->length() + 2 * frameWidth();
}

void VistaGriglia::stringi(bool stretta) {
    if (stretta_ == stretta) {
        return;
    }
    stretta_ = stretta;
    pittore_.testate(stretta);
    static_cast<TestataGriglia*>(horizontalHeader())->stretta(stretta);
    static_cast<TestataGriglia*>(verticalHeader())->stretta(stretta);
    misurate_.clear();
    minime_.clear();
}

void VistaGriglia::resizeEvent(QResizeEvent* evento) {
    QTableView::resizeEvent(evento);
    stringi(window()->width() < misura::finestraStretta);
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

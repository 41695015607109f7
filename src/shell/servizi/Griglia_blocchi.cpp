#include <algorithm>
#include <utility>

#include "base/testo.h"
#include "shell/servizi/Griglia.h"

namespace kelvo {

namespace {

/// Steps that can be undone.
constexpr std::size_t passiMassimi = 100;

/// A text as one cell of a copied block: what parts cells and rows becomes a blank.
std::string inUnaRiga(std::string testo) {
    std::replace_if(
        testo.begin(), testo.end(), [](char c) { return c == '\t' || c == '\r' || c == '\n'; }, ' ');
    return testo;
}

}  // namespace

std::vector<std::vector<std::string>> righeIncollate(std::string_view testo) {
    std::vector<std::vector<std::string>> righe;
    while (!testo.empty()) {
        const auto fine = std::min(testo.find_first_of("\r\n"), testo.size());
        std::string_view riga = testo.substr(0, fine);
        testo.remove_prefix(fine);
        testo.remove_prefix(testo.substr(0, 2) == fineRiga ? 2 : std::min<std::size_t>(1, testo.size()));
        std::vector<std::string>& celle = righe.emplace_back();
        for (;;) {
            const auto tabulazione = riga.find('\t');
            celle.emplace_back(rifila(riga.substr(0, tabulazione)));
            if (tabulazione == std::string_view::npos) {
                break;
            }
            riga.remove_prefix(tabulazione + 1);
        }
    }
    return righe;
}

bool Griglia::comanda(Tasto tasto) {
    switch (tasto) {
        case Tasto::canc:
            cancella();
            return true;
        case Tasto::copia:
        case Tasto::copiaConIntestazioni:
            copia(tasto == Tasto::copiaConIntestazioni);
            return true;
        case Tasto::incolla:
            if (Appunti* appunti = this->appunti()) {
                incolla(appunti->leggi());
            }
            return true;
        case Tasto::tutto:
            seleziona(primo(Meta::selezione), ultimo(Meta::selezione));
            return true;
        case Tasto::annulla:
        case Tasto::ripeti: {
            auto& da = tasto == Tasto::annulla ? fatti_ : disfatti_;
            auto& a = tasto == Tasto::annulla ? disfatti_ : fatti_;
            if (!da.empty()) {
                const Passo passo = std::move(da.back());
                da.pop_back();
                a.push_back(passo);
                rivedi(tasto == Tasto::annulla ? passo.prima : passo.dopo);
            }
            return true;
        }
        default:
            return false;
    }
}

std::string Griglia::testoFuori(Posto posto) const {
    const std::optional<std::string> altra = letturaFuori ? letturaFuori(posto) : std::nullopt;
    return altra ? *altra : testo(posto.riga, posto.colonna);
}

bool Griglia::muta(int riga) const {
    for (int c = 0; c < tabella_.colonne(); ++c) {
        if (visibile(c) && (puoModificare({riga, c}) || !testoFuori({riga, c}).empty())) {
            return false;
        }
    }
    return true;
}

std::string Griglia::testoSelezione(bool conIntestazioni) const {
    AreaCelle area = selezione();
    while (area.a.riga > area.da.riga && muta(area.a.riga)) {
        --area.a.riga;
    }
    std::string uscita;
    bool prima = true;
    for (int r = conIntestazioni ? 0 : area.da.riga; r <= area.a.riga; ++r) {
        if (!dentro({r, 0}) || (r < area.da.riga && r >= righeFisse_)) {
            continue;
        }
        uscita += prima ? "" : fineRiga;
        prima = false;
        bool primaCella = true;
        for (int c = conIntestazioni ? 0 : area.da.colonna; c <= area.a.colonna; ++c) {
            if (!visibile(c) || (c < area.da.colonna && c >= colonneFisse_)) {
                continue;
            }
            uscita += (primaCella ? "" : "\t") + inUnaRiga(testoFuori({r, c}));
            primaCella = false;
        }
    }
    return uscita;
}

void Griglia::copia(bool conIntestazioni) {
    if (Appunti* appunti = this->appunti()) {
        appunti->scrivi(testoSelezione(conIntestazioni));
    }
}

void Griglia::cancella() {
    const AreaCelle area = selezione();
    std::vector<TestoCella> celle;
    for (int r = area.da.riga; r <= area.a.riga; ++r) {
        for (int c = area.da.colonna; c <= area.a.colonna; ++c) {
            const Posto posto{r, c};
            if (!puoModificare(posto) || testo(r, c).empty()) {
                continue;
            }
            std::string nuovo;
            const EsitoUscita esito = allaConferma ? allaConferma(posto, nuovo) : EsitoUscita::bene();
            if (!esito.accettato) {
                giudica(esito);
                return;  // nothing is cleared by halves
            }
            celle.push_back({posto, nuovo});
        }
    }
    scriviCelle(celle);
}

std::vector<TestoCella> Griglia::celleDa(const std::vector<std::vector<std::string>>& righe) const {
    const AreaCelle area = selezione();
    std::vector<TestoCella> celle;
    const auto metti = [&](Posto posto, const std::string& testo) {
        if (puoModificare(posto)) {
            celle.push_back({posto, testo});
        }
    };
    if (righe.size() == 1 && righe[0].size() == 1) {
        for (int r = area.da.riga; r <= area.a.riga; ++r) {
            for (int c = area.da.colonna; c <= area.a.colonna; ++c) {
                metti({r, c}, righe[0][0]);
            }
        }
        return celle;
    }
    int r = area.da.riga;
    for (const std::vector<std::string>& riga : righe) {
        int c = area.da.colonna;
        for (const std::string& testo : riga) {
            while (c < tabella_.colonne() && !visibile(c)) {
                ++c;
            }
            metti({r, c}, testo);
            ++c;
        }
        ++r;
    }
    return celle;
}

EsitoUscita Griglia::esaminaBlocco(std::vector<TestoCella>& celle) const {
    if (allIncolla) {
        return allIncolla(celle);
    }
    for (const TestoCella& cella : celle) {
        const RegoleCella& regole = colonna(cella.posto.colonna).regole;
        const std::vector<std::string> lettere = caratteri(cella.testo);
        const bool lungo = regole.lunghezzaMassima != 0 && lettere.size() > regole.lunghezzaMassima;
        const bool estraneo =
            !regole.caratteri.empty() && std::any_of(lettere.begin(), lettere.end(), [&](const std::string& lettera) {
                return regole.caratteri.find(lettera) == std::string::npos;
            });
        if (lungo || estraneo) {
            EsitoUscita esito;
            esito.accettato = false;
            esito.motivo = "Il testo '" + cella.testo + "' non è ammesso nella riga " +
                           std::to_string(cella.posto.riga - righeFisse_ + 1) + ", colonna " +
                           std::to_string(cella.posto.colonna - colonneFisse_ + 1) + ": non è stato incollato nulla.";
            return esito;
        }
    }
    return EsitoUscita::bene();
}

bool Griglia::incolla(std::string_view testo) {
    return fermata(corrente_) && riempi(celleDa(righeIncollate(testo)));
}

bool Griglia::riempi(std::vector<TestoCella> celle) {
    celle.erase(
        std::remove_if(celle.begin(), celle.end(), [this](const TestoCella& c) { return !puoModificare(c.posto); }),
        celle.end());
    if (!raggiungibile() || editor_ || celle.empty()) {
        return false;
    }
    const EsitoUscita esito = esaminaBlocco(celle);
    if (esito.accettato) {
        scriviCelle(celle);
    }
    giudica(esito);
    return esito.accettato;
}

void Griglia::scriviCelle(const std::vector<TestoCella>& celle) {
    if (celle.empty()) {
        return;
    }
    const std::vector<std::string> prima = testi();
    std::vector<Posto> posti;
    for (const TestoCella& cella : celle) {
        tabella_.cella(cella.posto.riga, cella.posto.colonna).testo = cella.testo;
        posti.push_back(cella.posto);
    }
    ++versione_;
    if (dopoModifica) {
        dopoModifica(posti);
    }
    const std::vector<std::string> dopo = testi();
    Passo passo;
    for (std::size_t i = 0; i < std::min(prima.size(), dopo.size()); ++i) {
        if (prima[i] != dopo[i]) {
            const auto indice = static_cast<int>(i);
            const Posto posto{indice / tabella_.colonne(), indice % tabella_.colonne()};
            passo.prima.push_back({posto, prima[i]});
            passo.dopo.push_back({posto, dopo[i]});
        }
    }
    if (!passo.prima.empty() && prima.size() == dopo.size()) {
        disfatti_.clear();
        fatti_.push_back(std::move(passo));
        if (fatti_.size() > passiMassimi) {
            fatti_.erase(fatti_.begin());
        }
    }
    segna();
}

void Griglia::rivedi(const std::vector<TestoCella>& celle) {
    std::vector<Posto> posti;
    for (const TestoCella& cella : celle) {
        tabella_.cella(cella.posto.riga, cella.posto.colonna).testo = cella.testo;
        if (puoModificare(cella.posto)) {
            posti.push_back(cella.posto);
        }
    }
    ++versione_;
    inRevisione_ = true;
    if (dopoModifica) {
        dopoModifica(posti);
    }
    inRevisione_ = false;
    if (!posti.empty()) {
        vai(posti.front());
    }
    segna();
}

}  // namespace kelvo

#include "input/frmComposizioneTraffico.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <utility>
#include <vector>

#include "app/titoli.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "input/graficiComposizione.h"
#include "input/istogrammaTraffico.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Composizione del traffico";
constexpr const char* nonNumerico = "Inserire un valore numerico";
constexpr const char* oltreCento = "Attenzione il totale della categorie dei veicoli deve essere 100";
constexpr const char* diverso = "≠";
constexpr const char* diversi = "≠ coefficiente diverso dal riferimento";
constexpr const char* nelCalcolo = "Il calcolo usa i coefficienti di riferimento, che si cambiano nelle Opzioni.";
}  // namespace testi

constexpr const char* metodoCampi = "frmComposizioneTraffico:Campi";
constexpr const char* numerico = "Type:Numeric";
constexpr const char* paginaEquivalenti = "CoefficienteEquivalenza.htm";
constexpr const char* paginaRiferimento = "CoefficienteRiferimento.htm";
constexpr std::size_t ultima = numeroClassi - 1;
constexpr double intero = 100.0;
/// Decimals that a total is rounded to: as many as its shares have, within these. Cars are kept as a single: what is
/// asked of them is asked to the fewest.
constexpr int decimaliMinimi = 4;
constexpr int decimaliMassimi = 7;

double arrotondato(double valore, int decimali) {
    const double potenza = std::pow(10.0, decimali);
    return std::round(valore * potenza) / potenza;
}

int decimaliDi(std::string_view testo) {
    const auto virgola = testo.find(',');
    return virgola == std::string_view::npos ? 0 : static_cast<int>(testo.size() - virgola - 1);
}

using Quote = std::array<std::string, ultima>;

int decimaliDi(const Quote& quote) {
    int decimali = decimaliMinimi;
    for (const std::string& quota : quote) {
        decimali = std::max(decimali, decimaliDi(quota));
    }
    return std::min(decimali, decimaliMassimi);
}

bool staInUnSingolo(double valore) {
    return std::fabs(valore) <= static_cast<double>(std::numeric_limits<float>::max());
}

/// What the six shares leave of 100; nothing where one is no number, or where no single holds it.
std::optional<double> restoDi(const Quote& quote) {
    double r = intero;
    for (const std::string& quota : quote) {
        if (!leggiSingolo(quota)) {
            return std::nullopt;
        }
        r -= leggiNumero(quota).value_or(0.0);
    }
    return staInUnSingolo(r) ? std::optional{arrotondato(r, decimaliDi(quote))} : std::nullopt;
}

template <class Testo>
Quote seiQuote(Testo testo) {
    Quote quote;
    for (std::size_t i = 0; i < ultima; ++i) {
        quote[i] = testo(i);
    }
    return quote;
}

frmComposizioneTraffico::Riga riga(std::size_t i) {
    const CategoriaTraffico& c = categorieTraffico[i];
    const std::string campo = c.percento + std::string_view{"txt"}.size();
    return {.lblCategoria = Etichetta{"lbl" + campo, std::string{c.nome}},
            .txtPercento = tBox{c.percento, tBox::maskedit, numerico},
            .txtEquivalenti = tBox{c.coefficiente, tBox::maskedit, numerico},
            .txtRiferimento = tBox{c.riferimento, tBox::maskedit, numerico},
            .lblDiverso = Etichetta{"lblDiverso" + campo, testi::diverso, "ROSSO"}};
}

}  // namespace

frmComposizioneTraffico::frmComposizioneTraffico(const Contorno& contorno)
    : FinestraRamo(contorno, "frmComposizioneTraffico", testi::didascalia),
      righe{riga(0), riga(1), riga(2), riga(3), riga(4), riga(5), riga(6)},
      lblDiversi("lblDiversi", testi::diversi, "ROSSO"),
      lblRiferimento("lblRiferimento", testi::nelCalcolo) {
    std::vector<Controllo*> controlli;
    for (std::size_t i = 0; i < ultima; ++i) {
        controlli.insert(controlli.end(), {&righe[i].lblCategoria, &righe[i].txtPercento});
    }
    for (Riga& r : righe) {
        controlli.insert(controlli.end(), {&r.txtEquivalenti, &r.lblDiverso});
    }
    controlli.insert(controlli.end(), {&righe[ultima].lblCategoria, &righe[ultima].txtPercento});
    for (Riga& r : righe) {
        controlli.push_back(&r.txtRiferimento);
    }
    controlli.insert(controlli.end(),
                     {&lblTotale, &lblErroreTotale, &lblDiversi, &lblRiferimento, &ctlGraphPie, &ctlGraphBar});
    ordina(controlli);
    for (std::size_t i = 0; i < righe.size(); ++i) {
        prepara(i);
    }
}

void frmComposizioneTraffico::prepara(std::size_t i) {
    Riga& r = righe[i];
    for (tBox* campo : {&r.txtPercento, &r.txtEquivalenti}) {
        preparaNumerico(*campo, campoEquivalente);
        campo->rifiuto = testi::nonNumerico;
        campo->nomeCampo = categorieTraffico[i].nome;
        campo->unaVirgola = true;
    }
    r.txtPercento.paginaAiuto = categorieTraffico[i].paginaAiuto;
    r.txtEquivalenti.paginaAiuto = paginaEquivalenti;
    r.txtRiferimento.paginaAiuto = paginaRiferimento;
    r.txtRiferimento.solaLettura(true);
    r.txtEquivalenti.controllo = [this, i] { return controllaEquivalenti(i); };
    r.txtEquivalenti.dopoTasto = [this] { gestisci(metodoCampi, [this] { mostraDiversi(); }); };
    r.txtEquivalenti.dopoUscita = [this] { gestisci(metodoCampi, [this] { confronta(); }); };
    if (i == ultima) {
        r.txtPercento.solaLettura(true);
        return;
    }
    r.txtPercento.controllo = [this, i] { return controllaPercento(i); };
    r.txtPercento.dopoTasto = [this] { gestisci(metodoCampi, [this] { mostraTotale(); }); };
    r.txtPercento.dopoUscita = [this] { gestisci(metodoCampi, [this] { dopoPercento(); }); };
}

void frmComposizioneTraffico::ReadData() {
    gestisci("frmComposizioneTraffico:ReadData", [this] {
        const CoefficientiVeicoli riferimenti = app().configurazione.coefficienti();
        for (std::size_t i = 0; i < righe.size(); ++i) {
            righe[i].txtPercento.testo(tenuto(i));
            righe[i].txtEquivalenti.testo(testoNumero((composizione().*categorieTraffico[i].leggiVE)()));
            righe[i].txtRiferimento.testo(testoNumero(riferimenti[i]));
        }
        mostraTotale();
        mostraDiversi();
        RefreshGraph();
        DatiAllineati(true);
    });
}

void frmComposizioneTraffico::SaveData() {
    gestisci("frmComposizioneTraffico:SaveData", [this] {
        if (!convalida()) {
            return;
        }
        const auto scrivi = [this](tBox& campo, void (ComposizioneTraffico::*dove)(float)) {
            if (campo.modificato()) {
                (composizione().*dove)(singoloDi(campo));
                campo.salvato();
            }
        };
        for (std::size_t i = 0; i < righe.size(); ++i) {
            scrivi(righe[i].txtPercento, categorieTraffico[i].scrivi);
        }
        for (std::size_t i = 0; i < righe.size(); ++i) {
            scrivi(righe[i].txtEquivalenti, categorieTraffico[i].scriviVE);
        }
        mostraTotale();
        DatiAllineati(true);
    });
}

bool frmComposizioneTraffico::toccata() const {
    return std::any_of(righe.begin(), righe.end(), [](const Riga& r) { return r.txtPercento.modificato(); });
}

std::string frmComposizioneTraffico::tenuto(std::size_t i) const {
    return testoNumero((composizione().*categorieTraffico[i].leggi)());
}

std::optional<double> frmComposizioneTraffico::resto() const {
    return restoDi(seiQuote([this](std::size_t i) { return righe[i].txtPercento.testo(); }));
}

std::optional<double> frmComposizioneTraffico::restoTenuto() const {
    return restoDi(seiQuote([this](std::size_t i) { return tenuto(i); }));
}

/// A mix that the project holds past 100 is mended share by share: none may rise meanwhile.
bool frmComposizioneTraffico::abbassata(std::size_t i) const {
    return restoTenuto().value_or(-intero) < 0.0 && leggiNumero(righe[i].txtPercento.testo()) <= leggiNumero(tenuto(i));
}

/// Text of the cars beside the shares as they stand, which are numbers.
std::string frmComposizioneTraffico::autovetture() const {
    const std::optional<double> r = resto();
    if (!toccata()) {
        return righe[ultima].txtPercento.testo();
    }
    if (!r || *r < 0.0) {
        return tenuto(ultima);
    }
    bool comeTenute = true;
    for (std::size_t i = 0; i < ultima; ++i) {
        comeTenute = comeTenute && leggiNumero(righe[i].txtPercento.testo()) == leggiNumero(tenuto(i));
    }
    const double scarto = *r - leggiNumero(tenuto(ultima)).value_or(0.0);
    return comeTenute && arrotondato(scarto, decimaliMinimi) == 0.0 ? tenuto(ultima) : testoNumero(aSingolo(*r));
}

/// What is missing in the total, below 0 what is too much, where the six shares leave `mancante`.
double frmComposizioneTraffico::differenza(double mancante) const {
    const double vetture = leggiNumero(autovetture()).value_or(0.0);
    if (mancante >= 0.0) {
        return toccata() ? 0.0 : arrotondato(mancante - vetture, decimaliMinimi);
    }
    // Cars that would follow go down to 0; beside shares that the project holds past 100 they stay.
    const bool seguono = toccata() && restoTenuto().value_or(-intero) >= 0.0;
    return seguono ? mancante : arrotondato(mancante - std::max(0.0, vetture), decimaliMassimi);
}

EsitoUscita frmComposizioneTraffico::controllaPercento(std::size_t i) {
    const tBox& campo = righe[i].txtPercento;
    if (mascheraVuota(campo)) {
        return EsitoUscita::rifiuto(MessaggioCampo{testi::nonNumerico, titoli::attenzione, Icona::esclamazione});
    }
    RefreshGraph();
    // A mix that nobody touched stays as the project holds it, whatever it adds up to.
    if (!toccata() || resto().value_or(-intero) >= 0.0 || abbassata(i)) {
        return EsitoUscita::bene();
    }
    const bool detto = std::any_of(righe.begin(), righe.end(), [&](const Riga& altra) {
        return &altra.txtPercento != &campo && altra.txtPercento.fallito();
    });
    if (detto && !haFuoco(campo)) {
        return EsitoUscita::rifiuto(std::string{testi::oltreCento});  // one box tells of the total
    }
    return EsitoUscita::rifiuto(MessaggioCampo{testi::oltreCento, titoli::attenzione, Icona::esclamazione});
}

EsitoUscita frmComposizioneTraffico::controllaEquivalenti(std::size_t i) const {
    const tBox& campo = righe[i].txtEquivalenti;
    if (mascheraVuota(campo)) {
        return EsitoUscita::rifiuto(MessaggioCampo{testi::nonNumerico, titoli::attenzione, Icona::esclamazione});
    }
    const double valore = leggiNumero(campo.testo()).value_or(0.0);
    const bool ammesso = valore >= campoEquivalente.minimo && valore <= campoEquivalente.massimo;
    if (ammesso || !campo.modificato()) {
        return EsitoUscita::bene();
    }
    return EsitoUscita::rifiuto(
        MessaggioCampo{rifiutoLimiti(campoEquivalente), titoli::attenzione, Icona::esclamazione});
}

void frmComposizioneTraffico::dopoPercento() {
    if (toccata()) {
        righe[ultima].txtPercento.modifica(autovetture());
        RefreshGraph();
    }
    mostraTotale();
    confronta();
}

void frmComposizioneTraffico::mostraTotale() {
    const bool numeri = std::all_of(righe.begin(), righe.end(),
                                    [](const Riga& r) { return leggiSingolo(r.txtPercento.testo()).has_value(); });
    const std::optional<double> mancante = resto();
    const double scarto = mancante ? differenza(*mancante) : 0.0;
    std::string errore;
    if (!numeri) {
        errore = testi::nonNumerico;
    } else if (!mancante) {
        errore = testi::oltreCento;
    } else if (scarto != 0.0) {
        errore = "Totale " + testoNumero(arrotondato(intero - scarto, decimaliMassimi)) +
                 " %: " + testoNumero(std::fabs(scarto)) + (scarto < 0.0 ? " % di troppo" : " % in meno");
    }
    lblErroreTotale.testo(errore);
    lblErroreTotale.visibile(!errore.empty());
    lblTotale.testo("Totale 100 %, di cui autovetture " + autovetture() + " %");
    lblTotale.visibile(errore.empty());
}

void frmComposizioneTraffico::mostraDiversi() {
    const CoefficientiVeicoli riferimenti = app().configurazione.coefficienti();
    bool qualcuno = false;
    for (std::size_t i = 0; i < righe.size(); ++i) {
        const tBox& campo = righe[i].txtEquivalenti;
        const float valore = campo.modificato() ? leggiSingolo(campo.testo()).value_or(0.0F)
                                                : (composizione().*categorieTraffico[i].leggiVE)();
        righe[i].lblDiverso.visibile(valore != riferimenti[i]);
        qualcuno = qualcuno || valore != riferimenti[i];
    }
    lblDiversi.visibile(qualcuno);
}

void frmComposizioneTraffico::confronta() {
    const auto diverso = [](const tBox& campo, float tenuto) {
        return campo.modificato() && leggiSingolo(campo.testo()) != tenuto;
    };
    bool allineati = true;
    for (std::size_t i = 0; i < righe.size(); ++i) {
        const CategoriaTraffico& c = categorieTraffico[i];
        allineati = allineati && !diverso(righe[i].txtPercento, (composizione().*c.leggi)()) &&
                    !diverso(righe[i].txtEquivalenti, (composizione().*c.leggiVE)());
    }
    DatiAllineati(allineati);
}

std::string frmComposizioneTraffico::valoriGrafico() const {
    std::vector<std::string> valori;
    valori.reserve(righe.size());
    for (const Riga& r : righe) {
        valori.push_back(r.txtPercento.testo());
    }
    return testoGrafico(valori);
}

void frmComposizioneTraffico::RefreshGraph() {
    gestisci("DoCtlGraphPie", [this] { ctlGraphPie.contenuto(tortaComposizione(valoriGrafico())); });
    gestisci("frmComposizioneTraffico:RefreshGraph",
             [this] { ctlGraphBar.contenuto(barreComposizione(valoriGrafico())); });
}

}  // namespace kelvo

#include "input/frmComposizioneTraffico.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "base/guasto.h"
#include "base/numeri.h"
#include "input/graficiComposizione.h"
#include "input/istogrammaTraffico.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Composizione del traffico";
constexpr const char* attenzione = "KELVO 2014 - Attenzione";
constexpr const char* nonNumerico = "Inserire un valore numerico";
constexpr const char* oltreCento = "Attenzione il totale della categorie dei veicoli deve essere 100";
constexpr const char* diverso = "≠";
constexpr const char* diversi = "≠ coefficiente diverso dal riferimento";
constexpr const char* nelCalcolo = "Il calcolo usa i coefficienti di riferimento, che si cambiano nelle Opzioni.";
}  // namespace testi

constexpr const char* numerico = "Type:Numeric";
constexpr const char* paginaEquivalenti = "CoefficienteEquivalenza.htm";
constexpr const char* paginaRiferimento = "CoefficienteRiferimento.htm";
constexpr std::size_t ultima = numeroClassi - 1;
constexpr float intero = 100.0F;
/// Singles that stand for decimals leave less than half of this where the decimals add up.
constexpr double grana = 1e-4;

double arrotondato(double valore) {
    return std::round(valore / grana) * grana;
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
    r.txtEquivalenti.dopoTasto = [this] { mostraDiversi(); };
    r.txtEquivalenti.dopoUscita = [this] { confronta(); };
    if (i == ultima) {
        r.txtPercento.solaLettura(true);
        return;
    }
    r.txtPercento.controllo = [this, i] { return controllaPercento(i); };
    r.txtPercento.dopoTasto = [this] { mostraTotale(); };
    r.txtPercento.dopoUscita = [this] { dopoPercento(); };
}

void frmComposizioneTraffico::ReadData() {
    const CoefficientiVeicoli riferimenti = app().configurazione.coefficienti();
    for (std::size_t i = 0; i < righe.size(); ++i) {
        const CategoriaTraffico& c = categorieTraffico[i];
        righe[i].txtPercento.testo(testoNumero((composizione().*c.leggi)()));
        righe[i].txtEquivalenti.testo(testoNumero((composizione().*c.leggiVE)()));
        righe[i].txtRiferimento.testo(testoNumero(riferimenti[i]));
    }
    mostraTotale();
    mostraDiversi();
    RefreshGraph();
    DatiAllineati(true);
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

std::optional<float> frmComposizioneTraffico::residuo() const {
    float r = intero;
    for (std::size_t i = 0; i < ultima; ++i) {
        const tBox& campo = righe[i].txtPercento;
        if (mascheraVuota(campo) || !leggiSingolo(campo.testo())) {
            return std::nullopt;
        }
        r = aSingolo(static_cast<double>(r) - static_cast<double>(singoloDi(campo)));
    }
    return aSingolo(arrotondato(static_cast<double>(r)));
}

EsitoUscita frmComposizioneTraffico::controllaPercento(std::size_t i) {
    const tBox& campo = righe[i].txtPercento;
    if (mascheraVuota(campo)) {
        return EsitoUscita::rifiuto(MessaggioCampo{testi::nonNumerico, testi::attenzione, Icona::esclamazione});
    }
    RefreshGraph();
    // A mix that nobody touched stays as the project holds it, whatever it adds up to.
    if (!toccata() || residuo().value_or(0.0F) >= 0.0F) {
        return EsitoUscita::bene();
    }
    const bool detto = std::any_of(righe.begin(), righe.end(), [&](const Riga& altra) {
        return &altra.txtPercento != &campo && altra.txtPercento.fallito();
    });
    if (detto && !haFuoco(campo)) {
        return EsitoUscita::rifiuto(std::string{testi::oltreCento});  // one box tells of the total
    }
    return EsitoUscita::rifiuto(MessaggioCampo{testi::oltreCento, testi::attenzione, Icona::esclamazione});
}

EsitoUscita frmComposizioneTraffico::controllaEquivalenti(std::size_t i) const {
    const tBox& campo = righe[i].txtEquivalenti;
    if (mascheraVuota(campo)) {
        return EsitoUscita::rifiuto(MessaggioCampo{testi::nonNumerico, testi::attenzione, Icona::esclamazione});
    }
    const double valore = leggiNumero(campo.testo()).value_or(0.0);
    const bool ammesso = valore >= campoEquivalente.minimo && valore <= campoEquivalente.massimo;
    if (ammesso || !campo.modificato()) {
        return EsitoUscita::bene();
    }
    return EsitoUscita::rifiuto(
        MessaggioCampo{rifiutoLimiti(campoEquivalente), testi::attenzione, Icona::esclamazione});
}

void frmComposizioneTraffico::dopoPercento() {
    const std::optional<float> resto = residuo();
    if (toccata() && resto) {
        righe[ultima].txtPercento.modifica(testoNumero(*resto));
        RefreshGraph();
    }
    mostraTotale();
    confronta();
}

void frmComposizioneTraffico::mostraTotale() {
    const std::optional<float> resto = residuo();
    const double mancante = static_cast<double>(resto.value_or(0.0F));
    const double autovetture = leggiNumero(righe[ultima].txtPercento.testo()).value_or(0.0);
    // What was typed moves the last class as soon as its field is left.
    const double differenza = toccata() ? std::min(0.0, mancante) : arrotondato(mancante - autovetture);
    std::string errore;
    if (!resto) {
        errore = testi::nonNumerico;
    } else if (differenza < 0.0) {
        errore = "Totale " + testoNumero(aSingolo(100.0 - differenza)) + " %: " + testoNumero(aSingolo(-differenza)) +
                 " % di troppo";
    } else if (differenza > 0.0) {
        errore = "Totale " + testoNumero(aSingolo(100.0 - differenza)) + " %: manca il " +
                 testoNumero(aSingolo(differenza)) + " %";
    }
    lblErroreTotale.testo(errore);
    lblErroreTotale.visibile(!errore.empty());
    lblTotale.testo("Totale 100 %, di cui autovetture " + testoNumero(aSingolo(std::max(0.0, mancante))) + " %");
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
    for (std::size_t i = 0; i < righe.size(); ++i) {
        const CategoriaTraffico& c = categorieTraffico[i];
        const auto diverso = [&](const tBox& campo, float tenuto) {
            return campo.modificato() && leggiSingolo(campo.testo()) != tenuto;
        };
        if (diverso(righe[i].txtPercento, (composizione().*c.leggi)()) ||
            diverso(righe[i].txtEquivalenti, (composizione().*c.leggiVE)())) {
            DatiAllineati(false);
        }
    }
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

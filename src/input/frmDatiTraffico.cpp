#include "input/frmDatiTraffico.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/date.h"
#include "base/numeri.h"
#include "input/recuperoTraffico.h"
#include "shell/servizi/campiNumerici.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Dati di traffico";
constexpr const char* valoriGrafico = "Inserisci valori grafico";
constexpr const char* calcolaCurva = "Calcola curva di traffico";
constexpr const char* obiettivo = "Imposta un valore di flusso totale da assegnare all'ingresso";
constexpr const char* veicoli = "[veicoli]";
constexpr const char* avvia = "Avvia calcolo curva di traffico";
constexpr const char* ora = "[ora]";
constexpr const char* alMinuto = "[veicoli/min]";
}  // namespace testi

constexpr const char* cifreEVirgola = "0123456789,";
/// What a search writes has room: fifteen digits, a comma, a zero before it.
constexpr std::size_t cifreMassime = 17;

/// Pages of the help pane.
struct Pagina {
    tBox frmDatiTraffico::*campo;
    const char* nome;
};
constexpr std::array pagine{
    Pagina{&frmDatiTraffico::txtDescrizioneRamo, "DenominazioneRamo.htm"},
    Pagina{&frmDatiTraffico::txtIntervalloTempo, "IntervalloTempo.htm"},
    Pagina{&frmDatiTraffico::txtTempo1, "Tempo1.htm"},
    Pagina{&frmDatiTraffico::txtTempo2, "Tempo2.htm"},
    Pagina{&frmDatiTraffico::txtTempo3, "Tempo3.htm"},
    Pagina{&frmDatiTraffico::txtFlussoTempo1, "FlussoTempo1.htm"},
    Pagina{&frmDatiTraffico::txtFlussoTempo2, "FlussoTempo2.htm"},
    Pagina{&frmDatiTraffico::txtFlussoTempo3, "FlussoTempo3.htm"},
    Pagina{&frmDatiTraffico::txtFlussoTotale, "FlussoTotale.htm"},
    Pagina{&frmDatiTraffico::txtFlussoMedio, "FlussoMedio.htm"},
    Pagina{&frmDatiTraffico::txtFlussoOrario, "FlussoOrario.htm"},
    Pagina{&frmDatiTraffico::txtTarget, "FlussoObiettivo.htm"},
};

}  // namespace

using F = frmDatiTraffico;
using D = DatiTraffico;
const std::array<frmDatiTraffico::LegameNumero, 6> frmDatiTraffico::legamiNumeri{{
    {&F::txtFlussoTempo1, &D::FlussoTempo1, &D::FlussoTempo1},
    {&F::txtFlussoTempo2, &D::FlussoTempo2, &D::FlussoTempo2},
    {&F::txtFlussoTempo3, &D::FlussoTempo3, &D::FlussoTempo3},
    {&F::txtFlussoTotale, &D::FlussoTotale, &D::FlussoTotale},
    {&F::txtFlussoMedio, &D::FlussoMedio, &D::FlussoMedio},
    {&F::txtFlussoOrario, &D::FlussoOrario, &D::FlussoOrario},
}};
const std::array<frmDatiTraffico::LegameTempo, 3> frmDatiTraffico::legamiTempi{{
    {&F::txtTempo1, &D::Tempo1, &D::Tempo1},
    {&F::txtTempo2, &D::Tempo2, &D::Tempo2},
    {&F::txtTempo3, &D::Tempo3, &D::Tempo3},
}};

frmDatiTraffico::frmDatiTraffico(const Contorno& contorno)
    : FinestraRamo(contorno, "frmDatiTraffico", testi::didascalia),
      Check1("Check1", testi::valoriGrafico),
      Check2("Check2", testi::calcolaCurva),
      lblTarget("lblTarget", testi::obiettivo),
      lblUnitaTarget("lblUnitaTarget", testi::veicoli),
      Command1("Command1", testi::avvia) {
    ordina({&txtDescrizioneRamo,
            &txtIntervalloTempo,
            &txtTempo1,
            &txtTempo2,
            &txtTempo3,
            &txtFlussoTempo1,
            &txtFlussoTempo2,
            &txtFlussoTempo3,
            &txtFlussoTotale,
            &txtFlussoMedio,
            &txtFlussoOrario,
            &Check1,
            &Check2,
            &lblTarget,
            &txtTarget,
            &lblUnitaTarget,
            &Command1,
            &prgCurva,
            &lblApprox,
            &ctlChart});
    for (tBox* campo :
         {&txtDescrizioneRamo, &txtIntervalloTempo, &txtFlussoTotale, &txtFlussoMedio, &txtFlussoOrario}) {
        campo->solaLettura(true);
    }
    for (tBox* campo : {&txtFlussoTempo1, &txtFlussoTempo2, &txtFlussoTempo3, &txtTarget}) {
        campo->caratteriAmmessi = cifreEVirgola;
        campo->lunghezzaMassima = cifreMassime;
        campo->virgola = true;
        campo->controllo = [this, campo] { return controllaNumero(*campo); };
    }
    for (const Pagina& pagina : pagine) {
        (this->*pagina.campo).paginaAiuto = pagina.nome;
    }
    collega();
    cambiaModo();
}

void frmDatiTraffico::collega() {
    for (tBox* campo : {&txtFlussoTempo1, &txtFlussoTempo2, &txtFlussoTempo3}) {
        campo->dopoUscita = [this, campo] { dopoFlusso(*campo); };
    }
    for (std::size_t i = 0; i < legamiTempi.size(); ++i) {
        tBox& campo = this->*legamiTempi[i].campo;
        campo.controllo = [this, i] { return controllaTempo(i); };
        campo.dopoUscita = [this] { dopoTempo(); };
    }
    Check1.alClic = [this] { DoTheChart(); };
    Check2.alClic = [this] {
        // A key reaches the box while a field that refuses to be left has the focus.
        if (lasciaFuoco()) {
            cambiaModo();
        } else {
            Check2.spuntata(!Check2.spuntata());
        }
    };
    Command1.allaPressione = [this] {
        if (lasciaFuoco()) {
            CalcolaCurva();
        }
    };
}

std::vector<frmDatiTraffico::Riga> frmDatiTraffico::righe() {
    return {{"Denominazione ramo:", &txtDescrizioneRamo, ""},
            {"Intervallo di tempo", &txtIntervalloTempo, "[min]"},
            {"t1", &txtTempo1, testi::ora},
            {"t2", &txtTempo2, testi::ora},
            {"t3", &txtTempo3, testi::ora},
            {"q1", &txtFlussoTempo1, testi::alMinuto},
            {"q2", &txtFlussoTempo2, testi::alMinuto},
            {"q3", &txtFlussoTempo3, testi::alMinuto},
            {"Flusso Totale Ingresso", &txtFlussoTotale, testi::veicoli},
            {"Flusso Medio", &txtFlussoMedio, testi::alMinuto},
            {"Flusso Orario", &txtFlussoOrario, "[veicoli/h]"}};
}

void frmDatiTraffico::attivata() {
    FinestraRamo::attivata();
    curva_ = {};  // those of the leg that was shown before
    txtTarget.testo({});
    mostraDaCapo();
    Check1.spuntata(false);
    ctlChart.mostraValori(false);
    Check2.spuntata(false);
    cambiaModo();
    prgCurva.valore(0);
    ReadBackUpData();
    if (fuoco() == nullptr) {
        fuocoSu(txtTempo1);  // the first field that is typed into
    }
}

void frmDatiTraffico::ReadBackUpData() {
    const auto curva = curvaRecuperabile(app().theRotonda(), indiceRamo());
    if (!curva || !chiediRecupero(app(), indiceRamo(), DatoTraffico::curva)) {
        return;
    }
    txtTempo1.modifica(testoHHNN(curva->Tempo1));
    txtTempo2.modifica(testoHHNN(curva->Tempo2));
    txtTempo3.modifica(testoHHNN(curva->Tempo3));
    txtFlussoTempo1.modifica(testoNumero(curva->FlussoTempo1));
    txtFlussoTempo2.modifica(testoNumero(curva->FlussoTempo2));
    txtFlussoTempo3.modifica(testoNumero(curva->FlussoTempo3));
    CostruisciCurva();
    DoTheChart();
    confronta();
}

void frmDatiTraffico::rileggi() {
    curva_ = {};
    ReadData();
    mostraDaCapo();
    txtFlussoTempo2.abilitato(!Check2.spuntata());
    txtFlussoTempo3.abilitato(!Check2.spuntata());
}

void frmDatiTraffico::mostraDaCapo() {
    CostruisciCurva();
    DoTheChart();
    lblApprox.testo({});
    segnaSalvati();  // what was worked out while the leg was only looked at is no change of it
}

void frmDatiTraffico::ReadData() {
    txtDescrizioneRamo.testo(ramo().Descrizione());
    txtIntervalloTempo.testo(fmt::format("{:02}", minutiSegmento()));
    for (const LegameNumero& legame : legamiNumeri) {
        (this->*legame.campo).testo(testoNumero((dati().*legame.leggi)()));
    }
    for (const LegameTempo& legame : legamiTempi) {
        (this->*legame.campo).testo(testoHHNN((dati().*legame.leggi)()));
    }
    segnalato_ = {};
    DatiAllineati(true);
}

bool frmDatiTraffico::modificata() const {
    const auto diverso = [this](const auto& legame) { return (this->*legame.campo).modificato(); };
    return std::any_of(legamiNumeri.begin(), legamiNumeri.end(), diverso) ||
           std::any_of(legamiTempi.begin(), legamiTempi.end(), diverso);
}

void frmDatiTraffico::segnaSalvati() {
    for (const LegameNumero& legame : legamiNumeri) {
        (this->*legame.campo).salvato();
    }
    for (const LegameTempo& legame : legamiTempi) {
        (this->*legame.campo).salvato();
    }
}

void frmDatiTraffico::SaveData() {
    bool fatto = false;
    gestisci("frmDatiTraffico:SaveData", [this, &fatto] {
        if (modificata()) {
            if (!convalida()) {
                return;
            }
            if (mascheraVuota(txtFlussoTempo1) || mascheraVuota(txtFlussoTempo2) || mascheraVuota(txtFlussoTempo3)) {
                CostruisciCurva();  // what was left empty counts as 0, in the totals too
                DoTheChart();
            }
            // What reads as the leg would show it stays as the leg has it, which may be more than a text holds.
            for (const LegameNumero& legame : legamiNumeri) {
                const tBox& campo = this->*legame.campo;
                if (campo.testo() != testoNumero((dati().*legame.leggi)())) {
                    (dati().*legame.scrivi)(singoloDi(campo));
                }
            }
            for (const LegameTempo& legame : legamiTempi) {
                const tBox& campo = this->*legame.campo;
                if (campo.testo() != testoHHNN((dati().*legame.leggi)())) {
                    (dati().*legame.scrivi)(leggiHHNN(campo.testo()).value_or(0.0));
                }
            }
            segnaSalvati();
        }
        DatiAllineati(true);
        fatto = true;
    });
    if (!fatto) {
        stato().convalidaFallita = true;  // the window stays, with what was typed
    }
}

}  // namespace kelvo

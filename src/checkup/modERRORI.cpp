#include "checkup/modERRORI.h"

#include <fmt/format.h>

#include "base/guasto.h"
#include "base/numeri.h"
#include "base/somma.h"

namespace kelvo {

namespace {

constexpr std::string_view radiceReport = "ROOT";
constexpr std::string_view testoRadice = "Report Analisi Progetto: ";
constexpr std::array<std::string_view, livelli.size()> testiLivelli{
    "Messaggi di INFORMAZIONE Progetto: ", "Messaggi di VERIFICA Progetto: ", "Messaggi di ERRORE Progetto: "};
constexpr std::int16_t analisiSaturazione = 0;
constexpr std::int16_t analisiCurva = 1;
constexpr std::string_view rigaIntera = "100";

constexpr std::string_view finestraTempi = "frmTempoModellazione";
constexpr std::string_view campoGriglia = "ctlGrid";

const Meta& metaMatrice() {
    static const Meta meta{"keyMatriceSvolte", std::string{campoGriglia}, 0, 0};
    return meta;
}

/// Sum of all cells; the rows are added up as a rule has them.
double sommaCelle(const Matrice& matrice) {
    double totale = 0.0;
    for (const auto& riga : matrice) {
        totale += static_cast<double>(sommaMostrata(riga));
    }
    return totale;
}

}  // namespace

template <class Procedura>
void modERRORI::gestisci(const char* metodo, Procedura procedura) {
    try {
        procedura();
    } catch (const Guasto& guasto) {
        app_.comune.erroreLog(guasto.codice(), metodo, fmt::format("{} : {}", guasto.codice(), guasto.descrizione()),
                              true);
    }
}

std::string modERRORI::intestazione() const {
    const std::string titolo = fonti_.cornice != nullptr ? fonti_.cornice->titolo()
                                                         : fmt::format("KELVO 2014 - [{}.klv]", rotonda().NomeFile());
    return fmt::format("{} - {} - {}", titolo, testoHHNN(app_.orologio.adesso()), testoData(rotonda().Data()));
}

std::string modERRORI::mostrato(std::string_view finestra, std::string_view campo) const {
    return fonti_.campi != nullptr ? fonti_.campi->testo(finestra, campo).value_or(std::string{}) : std::string{};
}

void modERRORI::svuota() {
    ctlTreeAnalizzatore.svuota();
    gestisci("AGG_errore", [&] { ctlTreeAnalizzatore.radice = std::string{testoRadice} + intestazione(); });
}

void modERRORI::AGG_errore(std::string_view padre, const std::string& testo, Livello livello, const Meta& meta) {
    gestisci("AGG_errore", [&] {
        if (padre != radiceReport) {
            throw Guasto(NumeroGuasto::indiceFuoriIntervallo, fmt::format("nodo '{}'", padre));
        }
        AlberoRiscontri& albero = ctlTreeAnalizzatore;
        albero.radice = std::string{testoRadice} + intestazione();
        albero.riscontri.push_back(
            {fmt::format("{}{}", nomeLivello(livello), albero.nodi() + 1), testo, livello, meta});
    });
}

void modERRORI::segnala(Livello livello, std::string_view titolo, std::string_view messaggio, const Meta& meta) {
    messaggioErrore_.clear();
    messaggioErrore_.append(titolo).append(messaggio);
    AGG_errore(radiceReport, messaggioErrore_, livello, meta);
}

void modERRORI::AnalisiProgetto() {
    INPUT_AnagraficaIntersezione();
    INPUT_AnagraficaProgettista();
    INPUT_TempoModellazione();
    INPUT_Toponomastica();
    INPUT_Geometria();
    if (rotonda().TipoAnalisi() == analisiCurva) {
        INPUT_Dati_Traffico();
    } else {
        INPUT_Dati_TrafficoST();
    }
    INPUT_Dati_MatriceOD();
    if (rotonda().TipoFlusso() == 0) {
        INPUT_Dati_ComposizioneTraffico();
    } else {
        INPUT_Dati_ComposizioneTrafficoST();
    }
}

void modERRORI::DistribuisciMessaggi() {
    const std::string fine = intestazione();
    for (const Livello livello : livelli) {
        const auto posto = static_cast<std::size_t>(livello);
        const char lettera = nomeLivello(livello).front();
        AlberoRiscontri& albero = perLivello[posto];
        albero.svuota();
        albero.radice = std::string{testiLivelli[posto]} + fine;
        for (const Riscontro& riscontro : ctlTreeAnalizzatore.riscontri) {
            if (riscontro.chiave.front() == lettera) {
                Riscontro copia = riscontro;
                copia.chiave = fmt::format("{}{}", lettera, albero.nodi());
                albero.riscontri.push_back(copia);
            }
        }
    }
}

void modERRORI::campi(const Finestra& finestra, std::string_view titolo, std::span<const RegolaCampo> regole) {
    const DataOra oggi = app_.orologio.adesso();
    for (const RegolaCampo& regola : regole) {
        const auto aperto = fonti_.campi != nullptr ? fonti_.campi->testo(finestra.nome, regola.campo) : std::nullopt;
        if (regola.vale(aperto ? *aperto : regola.leggi(rotonda()), oggi)) {
            segnala(regola.livello, titolo, regola.messaggio,
                    {std::string{finestra.chiave}, std::string{regola.campo}, 0});
        }
    }
}

void modERRORI::INPUT_AnagraficaIntersezione() {
    gestisci("INPUT_AnagraficaIntersezione", [&] {
        campi({"frmAnagraficaRotonda", "keyAnagraficaRotonda"}, titoliRegole::anagrafica, regoleAnagrafica());
    });
}

void modERRORI::INPUT_AnagraficaProgettista() {
    gestisci("INPUT_AnagraficaProgettista", [&] {
        campi({"frmCommittenteProfessionista", "keyAnagraficaProfessionista"}, titoliRegole::professionista,
              regoleProfessionista());
    });
}

void modERRORI::INPUT_TempoModellazione() {
    gestisci("INPUT_TempoModellazione", [&] {
        std::string inizio = mostrato(finestraTempi, "txtTempoIniziale");
        std::string fine = mostrato(finestraTempi, "txtTempoFinale");
        std::string segmento = mostrato(finestraTempi, "txtSegmentoTempo");
        const Rotonda& r = rotonda();
        const bool vuoti = inizio.empty() && fine.empty();
        const auto completa = [](std::string& testo, const std::string& delProgetto, bool comunque) {
            if (comunque || testo.empty()) {
                testo = delProgetto;
            }
        };
        completa(inizio, testoHHNN(r.TempoIniziale()), vuoti);
        completa(fine, testoHHNN(r.TempoFinale()), vuoti);
        completa(segmento, testoNumero(minutoCampo(r.SegmentoTempo())), vuoti);
        const auto da = leggiHHNN(inizio);
        const auto a = leggiHHNN(fine);
        const auto minuti = leggiNumero(segmento);
        if (!da || !a || !minuti) {
            throw Guasto(NumeroGuasto::tipoNonCorrispondente,
                         fmt::format("tempo iniziale '{}', tempo finale '{}', segmento '{}'", inizio, fine, segmento));
        }
        if (segmentoTroppoAmpio(minutiTra(*da, *a), *minuti)) {
            segnala(Livello::Red, titoliRegole::tempo, messaggiRegole::segmentoAmpio,
                    {"keyTempoModellazione", "txtSegmentoTempo", 0});
        }
    });
}

void modERRORI::ramo(const EsameRamo& esame, std::span<const RegolaRamo> regole, Scelta scelta, const Meta& meta) {
    for (const RegolaRamo& regola : regole) {
        if (!regola.vale(esame)) {
            continue;
        }
        Meta sua = meta;
        if (sua.campo.empty()) {
            sua.campo = regola.campoDi != nullptr
                            ? regola.campoDi(esame)
                            : fmt::format(fmt::runtime(regola.campo), fmt::arg("n", esame.indice));
        }
        segnala(regola.livello, regola.titolo, messaggioRamo(regola, esame), sua);
        if (scelta == Scelta::prima) {
            return;
        }
    }
}

/// `nodo`: stem of the key of a leg, or the key of a window that shows all legs. `campo` stands for those of the rules.
void modERRORI::rami(std::span<const RegolaRamo> regole, Scelta scelta, const std::string& nodo,
                     std::string_view campo) {
    for (std::int16_t i = 1; i <= rotonda().NumeroRami(); ++i) {
        const EsameRamo esame{rotonda(), rotonda().Ramo(i), i};
        ramo(esame, regole, scelta, {fmt::format(fmt::runtime(nodo), fmt::arg("n", i)), std::string{campo}, i});
    }
}

void modERRORI::INPUT_Toponomastica() {
    gestisci("INPUT_Toponomastica",
             [&] { rami(regoleToponomastica(), Scelta::tutte, "keyToponomasticaIntersezione"); });
}

void modERRORI::diametri() {
    const Rotonda& r = rotonda();
    for (std::int16_t i = 2; i <= r.NumeroRami(); ++i) {
        if (r.Ramo(i).DiametroInscritto() != r.Ramo(1).DiametroInscritto()) {
            segnala(Livello::Yellow, titoliRegole::geometria, messaggiRegole::diametriDifferenti,
                    {fmt::format("keyRamo{}", i), "txtDiametroInscritto", i});
            return;
        }
    }
}

void modERRORI::INPUT_Geometria() {
    gestisci("INPUT_Geometria", [&] {
        diametri();
        rami(regoleGeometria(), Scelta::tutte, "keyRamo{n}");
    });
}

/// Where the study asks for no demand there is no window for it: the finding leads to the kind of analysis.
void modERRORI::traffico() {
    if (rotonda().TipoAnalisi() == analisiSaturazione) {
        rami(regoleTraffico(), Scelta::prima, "keyOpzioni", "grpTipoAnalisi");
    } else {
        const bool curva = rotonda().TipoAnalisi() == analisiCurva;
        rami(regoleTraffico(), Scelta::prima, "keyDatiTraffico{n}", curva ? std::string_view{} : campoGriglia);
    }
}

void modERRORI::INPUT_Dati_Traffico() {
    gestisci("INPUT_Dati_Traffico", [&] { traffico(); });
}

void modERRORI::INPUT_Dati_TrafficoST() {
    gestisci("INPUT_Dati_TrafficoST", [&] { traffico(); });
}

void modERRORI::INPUT_Dati_MatriceOD() {
    gestisci("INPUT_Dati_MatriceOD", [&] {
        Matrice matrice;
        rotonda().GetMatriceSvolte(matrice);
        if (rotonda().TipoMatriceSvolte() == 0) {
            matriceVeicoli(matrice);
        } else {
            matricePercentuale(matrice);
        }
    });
}

void modERRORI::matriceVeicoli(const Matrice& matrice) {
    const std::size_t n = matrice.size();
    for (std::size_t i = 0; i < n; ++i) {
        const auto indice = static_cast<std::int16_t>(i + 1);
        const EsameRamo esame{rotonda(), rotonda().Ramo(indice), indice, sommaMostrata(matrice[i]),
                              matrice[i][(i + 1) % n]};
        Meta meta = metaMatrice();
        meta.ramo = indice;
        meta.riga = indice;
        ramo(esame, regoleMatriceVeicoli(), Scelta::tutte, meta);
    }
    if (sommaCelle(matrice) == 0.0) {
        segnala(Livello::Red, titoliRegole::matrice, messaggiRegole::matriceNulla, metaMatrice());
    }
}

void modERRORI::matricePercentuale(const Matrice& matrice) {
    if (sommaCelle(matrice) == 0.0) {
        segnala(Livello::Red, titoliRegole::matrice, messaggiRegole::matriceNulla, metaMatrice());
        return;
    }
    for (std::size_t i = 0; i < matrice.size(); ++i) {
        if (testoNumero(sommaMostrata(matrice[i])) != rigaIntera) {
            Meta meta = metaMatrice();
            meta.riga = static_cast<int>(i) + 1;
            segnala(Livello::Red, titoliRegole::matrice, messaggiRegole::percentualiErrate, meta);
            return;
        }
    }
}

void modERRORI::coefficienti() {
    for (std::size_t i = 0; i < chiaviCoefficienti.size(); ++i) {
        const float valore = app_.comune.LeggiCoefficiente(i);
        if (valore != coefficientiDiFabbrica[i]) {
            segnala(Livello::Yellow, titoliRegole::composizione,
                    fmt::format(fmt::runtime(messaggiRegole::coefficiente), fmt::arg("nome", nomiCoefficienti[i]),
                                fmt::arg("valore", testoNumero(valore))),
                    {"keyOpzioni", fmt::format("txt{}", chiaviCoefficienti[i]), 0});
        }
    }
}

void modERRORI::INPUT_Dati_ComposizioneTraffico() {
    gestisci("INPUT_Dati_ComposizioneTraffico", [&] {
        coefficienti();
        rami(regoleComposizione(), Scelta::tutte, "keyComposizioneTraffico{n}");
    });
}

void modERRORI::INPUT_Dati_ComposizioneTrafficoST() {
    gestisci("INPUT_Dati_ComposizioneTrafficoST", [&] {
        coefficienti();
        rami(regoleComposizioneSegmenti(), Scelta::tutte, "keyComposizioneTraffico{n}");
    });
}

}  // namespace kelvo

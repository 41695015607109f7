#include <fmt/format.h>

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "Comando.h"
#include "argomenti.h"
#include "base/Tabella.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "base/testo.h"
#include "calc/ricercaCurva.h"
#include "impedimenti.h"
#include "json.h"

namespace kelvo::cli {

namespace {

constexpr std::int16_t analisiCurva = 1;

/// An outcome of the search, as the two forms of the output name it.
struct NomeEsito {
    const char* chiave;
    const char* parole;
};
constexpr std::array nomiEsito{NomeEsito{"trovata", "trovata"}, NomeEsito{"fallita", "non riuscita"},
                               NomeEsito{"passiEsauriti", "passi esauriti"}};

const NomeEsito& nome(EsitoRicerca esito) {
    return nomiEsito[static_cast<std::size_t>(esito)];
}

/// The curve of a leg, and the search that led to it if one was asked for.
struct CurvaDiRamo {
    DatiCurva dati;
    CurvaTraffico curva;
    double durata = 0.0;  ///< minutes from t1 to t3
    std::optional<RisultatoRicerca> ricerca;
    std::optional<double> scarto;  ///< approximation, per cent
};

double numeroDi(const std::string& testo) {
    return leggiNumero(testo).value_or(0.0);
}

using Righe = std::vector<std::pair<std::string, std::string>>;

std::string testoRighe(const Righe& righe, Allineamento allineamento) {
    Tabella tabella(static_cast<int>(righe.size()), 2);
    for (std::size_t r = 0; r < righe.size(); ++r) {
        tabella.cella(static_cast<int>(r), 0).testo = righe[r].first;
        tabella.cella(static_cast<int>(r), 1).testo = righe[r].second;
    }
    return testoTabella(tabella, {.allineamento = allineamento, .rigaVuotaPrima = {}});
}

class ComandoCurva final : public ComandoSuFile {
public:
    explicit ComandoCurva(CLI::App& radice)
        : ComandoSuFile(radice, "curva", "Mostra la curva di traffico di un ramo, o la cerca da un flusso totale",
                        "  kelvo-cli curva --ramo 2 Rotatoria.klv\n"
                        "  kelvo-cli curva --ramo 2 --obiettivo 600 --json Rotatoria.klv") {
        aggiungiIntero(*app_, "--ramo", ramo_, {.minimo = 1, .massimo = massimoRami},
                       fmt::format("numero del ramo, da 1 a {}", massimoRami))
            ->required();
        app_->add_option_function<std::string>(
                "--obiettivo",
                [this](const std::string& testo) {
                    obiettivo_ = leggiNumero(testo, Separatore::virgolaOPunto);
                    if (!obiettivo_ || !(*obiettivo_ >= 0.0)) {
                        throw CLI::ValidationError(
                            "--obiettivo", fmt::format("serve un numero di veicoli, 0 o più, non {}", citato(testo)));
                    }
                },
                "flusso totale in veicoli: cerca il picco q2, e q3, che lo danno a partire da q1")
            ->type_name("V");
        aggiungiJson();
    }

private:
    Configurazione configurazione() const override { return Configurazione::nessuna; }
    Impedimento impedimento(const Rotonda& rotonda) const override { return impedimentoRamo(rotonda, ramo_); }

    bool tratta(Contesto& contesto, const std::string& file) override {
        CurvaDiRamo risposta;
        const bool ramoTrovato = prepara(contesto, file);
        if (ramoTrovato) {
            costruisci(contesto, contesto.app().theRotonda(), risposta);
        }
        const bool riuscito = contesto.errori().empty();
        if (comuni_.json) {
            stampa(riga(json(contesto, file, ramoTrovato ? &risposta : nullptr)));
        } else if (riuscito || risposta.ricerca) {
            stampa(testo(contesto, risposta));
        }
        return riuscito;
    }

    void costruisci(Contesto& contesto, const Rotonda& rotonda, CurvaDiRamo& risposta) const {
        const Ramo& ramo = rotonda.Ramo(ramo_);
        if (rotonda.TipoAnalisi() != analisiCurva) {
            contesto.attenzione("il progetto non calcola con le curve di traffico");
        }
        const char* metodo = "frmDatiTraffico:CostruisciCurva";
        try {
            risposta.dati = datiCurvaDi(rotonda, ramo);
            risposta.durata = static_cast<double>(minutiTra(risposta.dati.t1, risposta.dati.t3));
            if (!CostruisciCurva(risposta.dati, risposta.curva)) {
                contesto.segnala(static_cast<int>(NumeroGuasto::chiamataNonValida), metodo,
                                 fmt::format("{}: la curva di traffico non si può costruire, un suo tratto non ha "
                                             "segmenti di tempo",
                                             ramo.Descrizione()));
            } else if (obiettivo_) {
                metodo = "frmDatiTraffico:CalcolaCurva";
                cerca(contesto, *obiettivo_, risposta);
            }
        } catch (const Guasto& guasto) {
            contesto.segnala(guasto.codice(), metodo, guasto.descrizione());
        }
    }

    static void cerca(Contesto& contesto, double obiettivo, CurvaDiRamo& risposta) {
        const char* metodo = "frmDatiTraffico:CalcolaCurva";
        const auto guasto = static_cast<int>(NumeroGuasto::chiamataNonValida);
        if (risposta.dati.q1 == 0.0) {
            contesto.segnala(guasto, metodo, "la ricerca parte da q1, che vale 0");
            return;
        }
        if (obiettivo > obiettivoElevato) {
            contesto.attenzione(fmt::format("valore apparentemente elevato, oltre {} veicoli", obiettivoElevato));
        }
        risposta.ricerca =
            cercaCurva({.dati = risposta.dati, .q1 = testoNumero(risposta.dati.q1), .obiettivo = obiettivo},
                       risposta.curva, [](int) {});
        risposta.dati.q2 = numeroDi(risposta.ricerca->q2);
        risposta.dati.q3 = numeroDi(risposta.ricerca->q3);
        CostruisciCurva(risposta.dati, risposta.curva);
        risposta.scarto = approssimazione(risposta.curva.TotaleEsatto, obiettivo);
        switch (risposta.ricerca->esito) {
            case EsitoRicerca::trovata:
                if (piccoAnomalo(risposta.dati.q1, risposta.dati.q2)) {
                    contesto.attenzione("differenza anomala tra il valore di picco q2 e q1: conviene modificare q1");
                }
                break;
            case EsitoRicerca::fallita:
                contesto.segnala(guasto, metodo,
                                 "la ricerca non è riuscita: il picco scenderebbe sotto q1; conviene ridurre q1");
                break;
            case EsitoRicerca::passiEsauriti:
                contesto.attenzione(fmt::format("la ricerca ha esaurito i suoi {} passi", passiMassimiRicerca));
                break;
        }
    }

    /// q3 of the curve that stands.
    static double q3Di(const CurvaDiRamo& risposta) {
        return risposta.curva.piatto ? risposta.dati.q2 : risposta.dati.q3;
    }

    std::string testo(Contesto& contesto, const CurvaDiRamo& risposta) const {
        const Rotonda& rotonda = contesto.app().theRotonda();
        const CurvaTraffico& curva = risposta.curva;
        Righe barre{{"", "Flusso [veic/min]"}};
        for (std::size_t i = 0; i < curva.FlussiSegmento.size(); ++i) {
            barre.emplace_back(curva.EtichetteSegmento[i], formatta(curva.FlussiSegmento[i], "#0.00"));
        }
        Righe righe{{"t1", testoHHNN(risposta.dati.t1)},
                    {"t2", testoHHNN(risposta.dati.t2)},
                    {"t3", testoHHNN(risposta.dati.t3)},
                    {"q1 [veic/min]", testoNumero(risposta.dati.q1)},
                    {"q2 [veic/min]", testoNumero(risposta.dati.q2)},
                    {"q3 [veic/min]", testoNumero(q3Di(risposta))},
                    {"Flusso totale ingresso [veic]", curva.totali.FlussoTotale},
                    {"Flusso medio [veic/min]", curva.totali.FlussoMedio},
                    {"Flusso orario [veic/h]", curva.totali.FlussoOrario}};
        if (risposta.ricerca) {
            righe.emplace_back("Obiettivo [veic]", testoNumero(*obiettivo_));
            righe.emplace_back("Ricerca", nome(risposta.ricerca->esito).parole);
            righe.emplace_back("Passi", testoNumero(risposta.ricerca->passi));
        }
        if (risposta.scarto) {
            righe.emplace_back("Approssimazione applicata", formatta(*risposta.scarto, "0.0000") + "%");
        }
        std::string tutto = fmt::format("Curva di traffico: {}", rotonda.Ramo(ramo_).Descrizione());
        tutto.append(fineRiga).append(fineRiga);
        tutto.append(testoRighe(barre, Allineamento::destra)).append(fineRiga);
        tutto.append(testoRighe(righe, Allineamento::sinistra)).append(fineRiga);
        return tutto.append(righeDiChiusura(contesto.app().orologio.adesso(), rotonda.NomeFile()));
    }

    Json json(Contesto& contesto, const std::string& file, const CurvaDiRamo* risposta) const {
        Json uscita = {{"file", file}};
        if (risposta != nullptr) {
            const Rotonda& rotonda = contesto.app().theRotonda();
            uscita["NomeFile"] = rotonda.NomeFile();
            uscita["Key"] = rotonda.Ramo(ramo_).Key();
            uscita["Descrizione"] = rotonda.Ramo(ramo_).Descrizione();
            aggiungiCurva(*risposta, uscita);
            if (risposta->ricerca) {
                uscita["ricerca"] = ricercaJson(*risposta);
            }
        }
        uscita["errori"] = erroriJson(contesto);
        return uscita;
    }

    static void aggiungiCurva(const CurvaDiRamo& risposta, Json& uscita) {
        const CurvaTraffico& curva = risposta.curva;
        if (curva.FlussiSegmento.empty()) {
            return;  // the curve could not be built
        }
        uscita["minuti"] = risposta.dati.minuti;
        uscita["Tempo1"] = testoHHNN(risposta.dati.t1);
        uscita["Tempo2"] = testoHHNN(risposta.dati.t2);
        uscita["Tempo3"] = testoHHNN(risposta.dati.t3);
        uscita["FlussoTempo1"] = numero(risposta.dati.q1);
        uscita["FlussoTempo2"] = numero(risposta.dati.q2);
        uscita["FlussoTempo3"] = numero(q3Di(risposta));
        uscita["piatto"] = curva.piatto;
        Json barre = Json::array();
        for (std::size_t i = 0; i < curva.FlussiSegmento.size(); ++i) {
            barre.push_back({{"intervallo", curva.EtichetteSegmento[i]}, {"Flusso", numero(curva.FlussiSegmento[i])}});
        }
        uscita["barre"] = barre;
        uscita["FlussoTotale"] = numero(curva.totale);
        if (risposta.durata != 0.0) {
            const double medio = static_cast<double>(curva.totale) / risposta.durata;
            uscita["FlussoMedio"] = numero(medio);
            uscita["FlussoOrario"] = numero(medio * 60.0);
        }
    }

    Json ricercaJson(const CurvaDiRamo& risposta) const {
        Json ricerca = {{"obiettivo", numero(*obiettivo_)},
                        {"q2", numero(risposta.dati.q2)},
                        {"q3", numero(q3Di(risposta))},
                        {"passi", risposta.ricerca->passi},
                        {"esito", nome(risposta.ricerca->esito).chiave}};
        ricerca["differenzaAnomala"] =
            risposta.ricerca->esito == EsitoRicerca::trovata && piccoAnomalo(risposta.dati.q1, risposta.dati.q2);
        if (risposta.scarto) {
            ricerca["approssimazione"] = numero(*risposta.scarto);
        }
        return ricerca;
    }

    std::int16_t ramo_ = 0;
    std::optional<double> obiettivo_;
};

}  // namespace

std::unique_ptr<Comando> comandoCurva(CLI::App& radice) {
    return std::make_unique<ComandoCurva>(radice);
}

}  // namespace kelvo::cli

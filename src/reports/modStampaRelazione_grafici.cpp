#include <fmt/format.h>

#include <array>

#include "base/guasto.h"
#include "pianta/Pianta.h"
#include "reports/celle.h"
#include "reports/modStampaRelazione.h"
#include "reports/segnaposto.h"
#include "results/calcoloIpotesi.h"
#include "results/tabellaRamo.h"

namespace kelvo {

namespace {

/// 1350 points over the width of the text: 200 to the inch on the page.
constexpr MisuraDisegno misuraGrafico{.larghezza = 900, .altezza = 0, .scala = 1.5};
constexpr MisuraDisegno misuraPianta{.larghezza = 1000, .altezza = 0, .scala = 2.0};
constexpr double larghezzaPiantaMm = 150.0;
constexpr int passiDelTelaio = 6;  ///< opening and the five that close

constexpr const char* modelloGrafico = "\\Modelli\\Grafico.dot";
constexpr const char* titolo = "ANALISI GRANDEZZE PRESTAZIONALI";
constexpr const char* sottotitolo = "Singoli ingressi";
constexpr const char* senzaGrandezze =
    "L'analisi del progetto è di sola saturazione: non ci sono grandezze nel tempo da rappresentare.";
constexpr const char* nessunDisegno = "Questo programma non può disegnare";

/// Captions of the charts of an entry, in their order; its name follows.
constexpr std::array<const char*, 5> didascalie{"Capacità - Ingresso ", "Coefficiente di Saturazione - Ingresso ",
                                                "Lunghezza delle code - Ingresso ", "Ritardi - Ingresso ",
                                                "Livello di servizio (L.O.S.) - Ingresso "};

[[noreturn]] void rifiuta(std::string_view parole) {
    throw Guasto::conParole(NumeroGuasto::operazioneImpossibile, parole);
}

std::string immagine(const EsitoDisegno& esito) {
    if (!esito.errore.empty()) {
        rifiuta(esito.errore);
    }
    return esito.dati;
}

}  // namespace

void modStampaRelazione::riempiPianta() {
    if (servizi_.disegnatore == nullptr) {
        sezione("riempiPianta", [&] { togli(segnalibro::paragrafoPianta); });
        return;
    }
    if (!documento_->HaSegnalibro(segnalibro::pianta)) {
        return;
    }
    sezione("riempiPianta", [&] {
        const std::string png = immagine(
            servizi_.disegnatore->pianta(pianta::datiPianta(rotonda()), {}, FormatoDisegno::png, misuraPianta));
        documento_->SelezionaSegnalibro(segnalibro::pianta);
        documento_->InserisciImmagine(
            {.png = png,
             .larghezzaMm = larghezzaPiantaMm,
             .altezzaMm = 0.0,
             .testoAlternativo = fmt::format("Pianta della rotatoria a {} rami", rotonda().NumeroRami())});
        documento_->InserisciParagrafo({.testo = "Pianta della rotatoria (schema)",
                                        .stile = tabellaRapporto::didascalia,
                                        .etichetta = tabellaRapporto::etichettaFigura});
    });
}

void modStampaRelazione::inserisciFigura(const FiguraRelazione& figura) {
    if (servizi_.disegnatore == nullptr) {
        rifiuta(nessunDisegno);
    }
    const std::string png = immagine(servizi_.disegnatore->grafico(figura.grafico, FormatoDisegno::png, misuraGrafico));
    documento_->InserisciImmagine({.png = png,
                                   .larghezzaMm = tabellaRapporto::larghezzaMm,
                                   .altezzaMm = 0.0,
                                   .testoAlternativo = figura.didascalia});
    documento_->InserisciParagrafo({.testo = figura.didascalia,
                                    .stile = tabellaRapporto::didascalia,
                                    .etichetta = tabellaRapporto::etichettaFigura});
}

void modStampaRelazione::inserisciTabella(const Tabella& tabella, const std::string& didascalia) {
    inserisciConDidascalia(*documento_, didascalia, comeTabella(tabella));
}

RelazioneGrafica modStampaRelazione::graficiIngresso(std::int16_t ramo, const OpzioniGrafici& opzioni) const {
    Tabella tabella = impostaTabellaRamo(rotonda());
    const Ramo& suo = rotonda().Ramo(ramo);
    riempiTabellaRamo(suo, tabella);
    const int segmenti = suo.theDatiTraffico().NumSegmentiTempo();
    RelazioneGrafica relazione;
    for (const GraficoGrandezza& quale : graficiGrandezze) {
        relazione.figure.push_back({graficoValori(rotonda(), tabella, quale, segmenti, opzioni), {}});
    }
    relazione.figure.push_back({graficoLivelli(rotonda(), tabella, segmenti, opzioni), {}});
    for (std::size_t g = 0; g < relazione.figure.size(); ++g) {
        relazione.figure[g].didascalia = didascalie.at(g) + suo.Descrizione();
    }
    return relazione;
}

EsitoRelazione modStampaRelazione::compilaGrafici(const OpzioniGrafici& opzioni) {
    Corsa corsa{.metodo = "compilaGrafici",
                .modello = modelloGrafico,
                .prefisso = "Grafici_",
                .conRisultati = true,
                .modelloProprio = false,
                .totale = passiDelTelaio + rotonda().NumeroRami()};
    for (std::int16_t i = 1; i <= rotonda().NumeroRami(); ++i) {
        corsa.passi.emplace_back([this, i, opzioni] {
            if (i == 1) {
                riempiAnagraficaRotonda();
                InserisciVariabileWord(segnaposto::titoloGrafico, titolo);
                InserisciVariabileWord(segnaposto::sottotitoloGrafico, sottotitolo);
                documento_->SelezionaSegnalibro(segnalibro::contenuto);
            }
            for (const FiguraRelazione& figura : graficiIngresso(i, opzioni).figure) {
                inserisciFigura(figura);
            }
        });
    }
    return gestisci(corsa.metodo, [&] {
        if (rotonda().TipoAnalisi() != analisi::curva && rotonda().TipoAnalisi() != analisi::tabella) {
            rifiuta(senzaGrandezze);
        }
        return componiESalva(corsa);
    });
}

EsitoRelazione modStampaRelazione::compilaGrafico(const RelazioneGrafica& relazione) {
    return compila({.metodo = "compilaGrafico",
                    .modello = relazione.modello,
                    .prefisso = relazione.prefisso,
                    .modelloProprio = false,
                    .totale = passiDelTelaio + 1,
                    .passi = {[this, &relazione] {
                        riempiAnagraficaRotonda();
                        InserisciVariabileWord(segnaposto::titoloGrafico, relazione.titolo);
                        InserisciVariabileWord(segnaposto::sottotitoloGrafico, relazione.sottotitolo);
                        documento_->SelezionaSegnalibro(segnalibro::contenuto);
                        for (const std::string& riga : relazione.righe) {
                            documento_->InserisciParagrafo({.testo = riga, .stile = {}});
                        }
                        if (relazione.tabella) {
                            inserisciTabella(*relazione.tabella, relazione.didascaliaTabella);
                        }
                        for (const FiguraRelazione& figura : relazione.figure) {
                            inserisciFigura(figura);
                        }
                    }}});
}

}  // namespace kelvo

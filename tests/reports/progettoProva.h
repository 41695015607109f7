#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/numeri.h"
#include "calc/modCalcolo.h"
#include "comune/finti.h"
#include "comune/fintiFinestre.h"
#include "comune/processiFinti.h"
#include "modelloProva.h"
#include "reports/modStampaRelazione.h"

namespace kelvo::prove {

/// What a project of the tests is like.
struct Forma {
    std::int16_t rami = 4;
    std::int16_t analisi = 1;
    std::int16_t flusso = 0;
    std::int16_t matrice = 0;
    std::int16_t segmenti = 4;  ///< of 15 minutes, from 08:00 on
};

/// A picture of one point.
inline std::string puntoPng() {
    const unsigned char byte[] = {0x89, 'P',  'N',  'G', '\r', '\n', 0x1A, '\n', 0,   0,   0,   13,   'I',  'H',  'D',
                                  'R',  0,    0,    0,   5,    0,    0,    0,    3,   8,   0,   0,    0,    0,    0x3A,
                                  0x7E, 0x9B, 0x55, 0,   0,    0,    0,    'I',  'E', 'N', 'D', 0xAE, 0x42, 0x60, 0x82};
    return {reinterpret_cast<const char*>(byte), sizeof byte};
}

/// Keeps what it is asked to draw.
class DisegnatoreFinto final : public Disegnatore {
public:
    EsitoDisegno pianta(const pianta::DatiPianta& /*dati*/, const pianta::OpzioniPianta& /*opzioni*/,
                        FormatoDisegno formato, const MisuraDisegno& /*misura*/) override {
        EXPECT_EQ(formato, FormatoDisegno::png);
        ++piante;
        return {errore.empty() ? puntoPng() : std::string{}, errore};
    }
    EsitoDisegno grafico(const Grafico::Contenuto& contenuto, FormatoDisegno formato,
                         const MisuraDisegno& misura) override {
        EXPECT_EQ(formato, FormatoDisegno::png);
        // 170 mm of a page at 200 points to the inch and more.
        EXPECT_GE(misura.larghezza * misura.scala, 170.0 / 25.4 * 200.0);
        grafici.push_back(contenuto);
        return {errore.empty() ? puntoPng() : std::string{}, errore};
    }
    int piante = 0;
    std::vector<Grafico::Contenuto> grafici;
    std::string errore;
};

/// Writes down what is shown of a run.
class AvanzamentoFinto final : public AvanzamentoRelazione {
public:
    void mostra(int totale) override { passi.push_back("mostra " + std::to_string(totale)); }
    void passo(int n) override { passi.push_back(std::to_string(n)); }
    void attende() override { passi.emplace_back("attende"); }
    void chiudi() override { passi.emplace_back("chiudi"); }
    std::vector<std::string> passi;
};

/// A file dialogue of this scene: answers a file of its folder, and looks at the folder meanwhile.
class Scena : public AppFinta {
public:
    explicit Scena(const Forma& forma = {}) {
        std::filesystem::copy(KELVO_CARTELLA "/Modelli", cartella.file("Modelli"));
        app.configurazione.PathErrore = "errori.txt";
        dialogo.risposta = cartella.file("Uscita.docx");
        messaggi.risposta = Risposta::no;
        app.comune.alErrore = [this](const ErroreRegistrato& errore) { errori.push_back(errore); };
        progetto(forma);
    }

    ServiziRelazione servizi() {
        ServiziRelazione s{.messaggi = messaggi};
        s.dialogo = &dialogo;
        s.documenti = &documenti;
        s.avanzamento = &avanzamento;
        s.disegnatore = conDisegni ? &disegnatore : nullptr;
        s.corsiaDX = [this] { return corsia; };
        s.modelloProprio = modelloProprio;
        s.pdf = conPDF ? &convertitore : nullptr;
        return s;
    }
    modStampaRelazione modulo() { return {app, servizi()}; }
    /// The report that was saved, read back.
    Letto letto() const { return Letto(contenuto(cartella.file("Uscita.docx"))); }
    bool salvato() const { return std::filesystem::exists(cartella.file("Uscita.docx")); }

    void progetto(const Forma& forma) {
        Rotonda& r = app.theRotonda();
        r.Clear();
        r.NumeroRami(forma.rami);
        r.NomeFile("Rotatoria_prova");
        r.Titolo("Nodo di prova");
        r.Localita("Borgo");
        r.TempoIniziale(oraDelGiorno(8, 0));
        r.TempoFinale(oraDelGiorno(8, 15 * forma.segmenti));
        r.SegmentoTempo(oraDelGiorno(0, 15));
        for (std::int16_t i = 1; i <= forma.rami; ++i) {
            ramo(r.AddRamo(std::to_string(i) + "Ramo"), i, forma);
        }
        r.TipoAnalisi(forma.analisi);
        r.TipoFlusso(forma.flusso);
        r.TipoMatriceSvolte(forma.matrice);
        for (std::int16_t o = 1; o <= forma.rami; ++o) {
            for (std::int16_t d = 1; d <= forma.rami; ++d) {
                // In vehicles 10 o + d; in per cent the same share for each exit.
                const float valore =
                    forma.matrice == 1 ? 100.0F / static_cast<float>(forma.rami - 1) : static_cast<float>(10 * o + d);
                r.MatriceSvolte(o == d ? 0.0F : valore, o, d);
            }
        }
    }

    OrologioFinto ora;
    DialogoFinto dialogo;
    DocumentiFinti documenti;
    AvanzamentoFinto avanzamento;
    DisegnatoreFinto disegnatore;
    bool conDisegni = true;
    std::optional<AnalisiCorsiaDX> corsia;
    std::string modelloProprio;
    ConvertitoreFinto convertitore;
    bool conPDF = false;
    std::vector<ErroreRegistrato> errori;

private:
    static void ramo(Ramo& ramo, std::int16_t i, const Forma& forma) {
        const auto n = static_cast<float>(i);
        ramo.Descrizione("Via " + std::string(1, static_cast<char>('A' + i - 1)));
        ramo.SemiLarghezza(3.0F + n / 10.0F);
        ramo.LarghezzaIngresso(5.0F + n / 10.0F);
        ramo.AttraversamentoPedonale(i % 2 == 0);
        DatiTraffico& dati = ramo.theDatiTraffico();
        dati.NumSegmentiTempo(forma.segmenti);
        ramo.theComposizioneTraffico().NumSegmentiTempo(forma.segmenti);
        dati.Tempo1(oraDelGiorno(8, 0));
        dati.Tempo2(oraDelGiorno(8, 30));
        dati.Tempo3(oraDelGiorno(8, 15 * forma.segmenti));
        dati.FlussoTempo1(2.0F + n);
        dati.FlussoTempo2(4.0F + n);
        dati.FlussoTempo3(1.0F + n);
        dati.FlussoTotale(100.0F * n);
        dati.FlussoMedio(1.5F * n);
        dati.FlussoOrario(90.0F * n);
        for (std::int16_t s = 0; s < forma.segmenti; ++s) {
            dati.FlussoSegmento(50.0F + 10.0F * static_cast<float>(s) + n, s, 0);
            for (std::int16_t c = 0; c < numeroClassi; ++c) {
                ramo.theComposizioneTraffico().CategoriaSegmento(static_cast<float>(c + i), s, c);
            }
        }
        ramo.theComposizioneTraffico().Autotreni(n);
        ramo.theComposizioneTraffico().Autovetture(100.0F - n);
        ramo.theAnalisiMarginale().DescrizioneCondizioniEsterne("Condizione " + std::to_string(i));
        ramo.theAnalisiMarginale().CondizioniEsterne(n / 4.0);
    }
};

/// The texts of the cells of a table, row by row.
using Celle2D = std::vector<std::vector<std::string>>;
inline Celle2D celleDi(pugi::xml_node tabella) {
    Celle2D celle;
    for (const pugi::xml_node riga : tabella.children("w:tr")) {
        auto& nuova = celle.emplace_back();
        for (const pugi::xml_node cella : riga.children("w:tc")) {
            nuova.push_back(Letto::testo(cella));
        }
    }
    return celle;
}
/// Those of the table in which a bookmark stands.
inline Celle2D tabellaDi(const Letto& letto, const std::string& segnalibro) {
    const auto trovata =
        letto.corpo().select_node((".//w:tbl[.//w:bookmarkStart[@w:name='" + segnalibro + "']]").c_str());
    EXPECT_TRUE(trovata) << segnalibro;
    return celleDi(trovata.node());
}
/// Those of the table behind the caption that ends in `didascalia`.
inline Celle2D tabellaDopo(const Letto& letto, const std::string& didascalia) {
    for (const pugi::xml_node p : letto.corpo().children("w:p")) {
        const std::string testo = Letto::testo(p);
        const bool sua = testo.size() >= didascalia.size() &&
                         testo.compare(testo.size() - didascalia.size(), didascalia.size(), didascalia) == 0;
        if (sua && std::string(p.next_sibling().name()) == "w:tbl") {
            return celleDi(p.next_sibling());
        }
    }
    ADD_FAILURE() << "nessuna tabella: " << didascalia;
    return {};
}
inline bool haSegnalibro(const Letto& letto, const std::string& nome) {
    return !letto.corpo().select_nodes((".//w:bookmarkStart[@w:name='" + nome + "']").c_str()).empty();
}

}  // namespace kelvo::prove

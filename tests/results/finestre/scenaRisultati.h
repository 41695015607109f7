#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "app/nuovoProgetto.h"
#include "comune/fintiFinestre.h"
#include "results/ServiziRisultati.h"

namespace kelvo::prove {

/// Windows beside and over another: writes down what is asked, and goes to the work area by the switcher.
class CollegateFinte final : public FinestreCollegate {
public:
    explicit CollegateFinte(modGestioneFinestre& gestione) : gestione_(gestione) {}
    bool mostra(Finestra& finestra) override {
        passi.push_back("mostra " + finestra.nome());
        return gestione_.ShowForm(&finestra);
    }
    void affianca(Finestra& finestra) override { passi.push_back("affianca " + finestra.nome()); }
    void sovrapponi(Finestra& finestra) override { passi.push_back("sovrapponi " + finestra.nome()); }
    void chiudi(Finestra& finestra) override { passi.push_back("chiudi " + finestra.nome()); }
    void dimentica(Finestra& finestra) override { passi.push_back("dimentica " + finestra.nome()); }
    std::vector<std::string> passi;

private:
    modGestioneFinestre& gestione_;
};

/// A clipboard in memory.
class AppuntiFinti final : public Appunti {
public:
    void scrivi(const std::string& testo) override { contenuto = testo; }
    std::string leggi() const override { return contenuto; }
    std::string contenuto;
};

/// What result windows need of a program, with a small project of three legs.
struct ScenaRisultati : testing::Test, ScenaFinestre {
    DocumentiFinti documenti;
    CollegateFinte collegate{gestione};

    ScenaRisultati() { progetto(3); }
    /// With reports and a spreadsheet that nobody looks at.
    ServiziRisultati servizi() {
        ServiziRisultati tutti{documenti, collegate};
        tutti.foglio = [](const std::string& /*percorso*/) {};
        tutti.relazione = [] {};
        tutti.relazioneGrafica = [](const RelazioneGrafica& /*relazione*/) {};
        tutti.relazioneTotale = [] {};
        return tutti;
    }
    Rotonda& r() { return app.theRotonda(); }
    Ramo& ramo(int i) { return r().Ramo(static_cast<std::int16_t>(i)); }
    /// An hour from 08:00 in quarters, demand as a curve in all legs, equal turns.
    void progetto(int rami) {
        creaProgetto(app, static_cast<std::int16_t>(rami));
        for (int i = 1; i <= rami; ++i) {
            ramo(i).theDatiTraffico().FlussoTempo1(4.0F);
            ramo(i).theDatiTraffico().FlussoTempo2(8.0F + static_cast<float>(i));
            ramo(i).theDatiTraffico().FlussoTempo3(3.0F);
            ramo(i).theDatiTraffico().FlussoOrario(100.0F * static_cast<float>(i));
            for (int j = 1; j <= rami; ++j) {
                if (i != j) {
                    r().MatriceSvolte(10.0F, static_cast<std::int16_t>(i), static_cast<std::int16_t>(j));
                }
            }
        }
    }
    /// Opens one of the example projects.
    void esempio(const std::string& nome) {
        std::string messaggio;
        bool esito = false;
        app.caricaRotonda(std::string{KELVO_SORGENTI} + "/assets/Progetti/" + nome + ".klv", messaggio, esito);
        ASSERT_TRUE(esito) << messaggio;
    }
    void apri(Finestra& finestra, const std::string& chiave) {
        navigazione.corrente = chiave;
        ASSERT_TRUE(gestione.ShowForm(&finestra));
    }
    std::string file(const std::string& nome) { return contenuto(app.theAmbiente.CartellaLavoro() + nome); }
    /// A golden file of the room's tests, or of another folder of tests; its date is that of the clock.
    std::string atteso(const std::string& nome) {
        std::string testo = contenuto(std::string{KELVO_SORGENTI} + "/tests/" + nome);
        const std::string segno = "<data>";
        const auto posto = testo.find(segno);
        EXPECT_NE(posto, std::string::npos) << nome;
        return posto == std::string::npos ? testo : testo.replace(posto, segno.size(), "21/11/2026 10:30:05");
    }
    std::vector<std::string> testi() const {
        std::vector<std::string> tutti;
        for (const auto& m : messaggi.mostrati) {
            tutti.push_back(m.testo);
        }
        return tutti;
    }
};

}  // namespace kelvo::prove

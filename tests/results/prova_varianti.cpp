// Two variants of a project: input that differs, figures side by side.

#include <gtest/gtest.h>

#include <algorithm>

#include "model/campiKlv.h"
#include "progettoAnalisi.h"
#include "results/calcoloIpotesi.h"
#include "results/risultatiProgetto.h"
#include "results/varianti.h"

namespace kelvo {
namespace {

using prove::AppFinta;
using prove::creaStudio;

class Varianti : public testing::Test {
protected:
    Varianti() { studi(3, analisi::curva); }
    void studi(std::int16_t rami, std::int16_t tipo) {
        creaStudio(fintaA, rami, tipo);
        creaStudio(fintaB, rami, tipo);
    }
    Rotonda& a() { return fintaA.app.theRotonda(); }
    Rotonda& b() { return fintaB.app.theRotonda(); }
    DifferenzeProgetti diverse() { return differenze(a(), b()); }
    /// The one datum that differs.
    Differenza unica() {
        const DifferenzeProgetti d = diverse();
        EXPECT_EQ(d.dati.size(), 1U);
        EXPECT_TRUE(d.note.empty());
        return d.dati.empty() ? Differenza{} : d.dati.front();
    }
    ConfrontoEsiti esiti() { return confrontaEsiti(esitiVariante(a()), esitiVariante(b())); }
    static const RigaVarianti& riga(const std::vector<RigaVarianti>& righe, std::string_view chiave) {
        return *std::find_if(righe.begin(), righe.end(),
                             [&](const RigaVarianti& r) { return r.grandezza->chiave == chiave; });
    }
    AppFinta fintaA;
    AppFinta fintaB;
};

/// Gives a property another value.
template <class O>
struct Cambio {
    O& oggetto;
    void operator()(const klv::Testo<O>& c) const { (oggetto.*c.scrivi)("altro"); }
    void operator()(const klv::Logico<O>& c) const { (oggetto.*c.scrivi)(!(oggetto.*c.leggi)()); }
    void operator()(const klv::Intero<O>& c) const {
        (oggetto.*c.scrivi)(static_cast<std::int16_t>((oggetto.*c.leggi)() + 1));
    }
    void operator()(const klv::Singolo<O>& c) const { (oggetto.*c.scrivi)((oggetto.*c.leggi)() + 1.0F); }
    void operator()(const klv::Doppio<O>& c) const { (oggetto.*c.scrivi)((oggetto.*c.leggi)() + 1.0); }
    void operator()(const klv::Ora<O>& c) const { (oggetto.*c.scrivi)((oggetto.*c.leggi)() + oraDelGiorno(0, 30)); }
    void operator()(const klv::Giorno<O>& c) const { (oggetto.*c.scrivi)((oggetto.*c.leggi)() + 1.0); }
};

TEST_F(Varianti, EveryPropertyOfAProjectIsTold) {
    const auto prova = [&](const std::string& percorso, const auto& campi, auto oggetto) {
        for (const auto& campo : campi) {
            if (campo.nome == klv::chiaveNumeroRami || campo.nome == klv::chiaveSegmenti) {
                continue;  // the size of a project: told below
            }
            studi(3, analisi::curva);
            using O = std::remove_reference_t<decltype(oggetto())>;
            std::visit(Cambio<O>{oggetto()}, campo.accesso);
            const DifferenzeProgetti d = diverse();
            ASSERT_FALSE(d.dati.empty()) << campo.nome;
            const std::string atteso = percorso + std::string{campo.nome};
            EXPECT_TRUE(std::any_of(d.dati.begin(), d.dati.end(), [&](const Differenza& x) {
                return x.campo == atteso;
            })) << atteso;
        }
    };
    prova("", klv::rotonda::campi, [&]() -> Rotonda& { return b(); });
    prova("Rami[2].", klv::ramo::campi, [&]() -> Ramo& { return b().Ramo(2); });
    prova("Rami[2].theDatiTraffico.", klv::traffico::campi,
          [&]() -> DatiTraffico& { return b().Ramo(2).theDatiTraffico(); });
    prova("Rami[2].theComposizioneTraffico.", klv::composizione::campi,
          [&]() -> ComposizioneTraffico& { return b().Ramo(2).theComposizioneTraffico(); });
    prova("Rami[2].theAnalisiMarginale.", klv::analisi::campi,
          [&]() -> AnalisiMarginale& { return b().Ramo(2).theAnalisiMarginale(); });
}

TEST_F(Varianti, EqualProjectsAreIdentical) {
    EXPECT_TRUE(diverse().identici());
    b().Ramo(3).LarghezzaIngresso(4.75F);
    EXPECT_FALSE(diverse().identici());
}

TEST_F(Varianti, ADatumIsToldWithItsPlaceItsNameAndItsDifference) {
    a().Ramo(2).LarghezzaIngresso(4.2F);
    b().Ramo(2).LarghezzaIngresso(4.5F);
    const Differenza d = unica();
    EXPECT_EQ(d.campo, "Rami[2].LarghezzaIngresso");
    EXPECT_EQ(d.ramo, 2);
    EXPECT_EQ(d.nome, "Larghezza ingresso e [m]");
    EXPECT_EQ(d.testoA, "4,2");
    EXPECT_EQ(d.testoB, "4,5");
    EXPECT_EQ(std::get<float>(*d.scarto), 0.3F);
    EXPECT_EQ(d.testoScarto, "+0,3");
}

TEST_F(Varianti, WordsTimesAndChoicesHaveNoDifference) {
    b().TipoMatriceSvolte(0);
    b().TipoFlusso(1);
    const Differenza scelta = unica();
    EXPECT_EQ(scelta.testoA, "costante");
    EXPECT_EQ(scelta.testoB, "per segmento di tempo");
    EXPECT_FALSE(scelta.scarto.has_value());
    studi(3, analisi::curva);
    b().Note("Prima riga\nseconda riga, più lunga di quanto stia in una cella di una tabella di testo");
    const Differenza note = unica();
    EXPECT_EQ(note.testoB, "Prima riga seconda riga, più lunga di quanto stia in una cel...");
    EXPECT_EQ(std::get<std::string>(note.b).find('\n'), 10U);
    EXPECT_FALSE(note.scarto.has_value());
    studi(3, analisi::curva);
    a().Data(giornoCalendario(2026, 3, 12));
    b().Data(giornoCalendario(2026, 3, 13));
    EXPECT_EQ(unica().testoA, "12/03/2026");
    EXPECT_EQ(std::get<std::string>(unica().a), "2026-03-12");
}

TEST_F(Varianti, LongTextsAreShownWhereTheyDiffer) {
    const std::string inizio(80, 'x');
    a().Note(inizio + "è la prima");
    b().Note(inizio + "è la seconda, " + std::string(60, 'y'));
    const Differenza note = unica();
    const std::string coda(15, 'x');  // and five more letters: what both have before they part
    EXPECT_EQ(note.testoA, "..." + coda + "è la prima");
    EXPECT_EQ(note.testoB, "..." + coda + "è la seconda, " + std::string(31, 'y') + "...");
    EXPECT_EQ(std::get<std::string>(note.a), inizio + "è la prima");
}

TEST_F(Varianti, LegsThatHaveMovedAreNamed) {
    const char* nomi[] = {"Via Nuova", "Via Vecchia", "Via Roma"};
    for (std::int16_t i = 1; i <= 3; ++i) {
        a().Ramo(i).Descrizione(nomi[i - 1]);
        b().Ramo(i).Descrizione(nomi[i % 3]);
    }
    EXPECT_EQ(diverse().note,
              (std::vector<std::string>{
                  "I rami si confrontano per posizione; in B hanno un'altra posizione: Via Nuova (da ramo A a ramo C), "
                  "Via Vecchia (da ramo B a ramo A), Via Roma (da ramo C a ramo B)."}));
    // Of a name that two legs have nobody can tell which one moved.
    b().Ramo(3).Descrizione("Via Vecchia");
    b().Ramo(2).Descrizione("Via Nuovissima");
    EXPECT_TRUE(diverse().note.empty());
}

TEST_F(Varianti, DataThatOneStudyDoesNotReadAreMarked) {
    b().Ramo(1).theDatiTraffico().FlussoTempo2(10.0F);
    EXPECT_TRUE(unica().usoA && unica().usoB);
    a().TipoAnalisi(analisi::tabella);
    b().TipoAnalisi(analisi::tabella);
    EXPECT_FALSE(unica().usoA || unica().usoB);
    b().TipoAnalisi(analisi::curva);
    const DifferenzeProgetti d = diverse();
    ASSERT_EQ(d.dati.size(), 2U);
    EXPECT_TRUE(d.dati[0].usoA && d.dati[0].usoB);  // the kind of analysis itself
    EXPECT_FALSE(d.dati[1].usoA);
    EXPECT_TRUE(d.dati[1].usoB);
    studi(3, analisi::saturazione);
    b().Ramo(1).theComposizioneTraffico().Pullman(3.0F);
    EXPECT_FALSE(unica().usoA || unica().usoB);
}

TEST_F(Varianti, SegmentsAreComparedByTheirTime) {
    studi(3, analisi::tabella);
    b().TempoIniziale(oraDelGiorno(8, 30));
    b().TempoFinale(oraDelGiorno(9, 30));
    // 60, 80, 100, 60 from 08:00 on in A; what B has from 08:30 on begins with the same 100 and differs at 08:45.
    for (std::int16_t i = 1; i <= 3; ++i) {
        DatiTraffico& traffico = b().Ramo(i).theDatiTraffico();
        traffico.FlussoSegmento(100.0F, 0, 0);
        traffico.FlussoSegmento(i == 2 ? 61.0F : 60.0F, 1, 0);
    }
    const DifferenzeProgetti d = diverse();
    ASSERT_EQ(d.dati.size(), 3U);  // the two times of the window, and
    EXPECT_EQ(d.dati[2].campo, "Rami[2].theDatiTraffico.FlussoSegmento[4]");
    EXPECT_EQ(d.dati[2].nome, "Flusso [veic], 08:45 - 09:00");
    EXPECT_EQ(d.dati[2].testoScarto, "+1");
    EXPECT_EQ(d.note, (std::vector<std::string>{"Segmenti di tempo solo in A: 2 (08:00 - 08:30).",
                                                "Segmenti di tempo solo in B: 2 (09:00 - 09:30)."}));
}

TEST_F(Varianti, AWindowInsideTheOtherLeavesSegmentsAtBothEnds) {
    b().TempoIniziale(oraDelGiorno(8, 15));
    b().TempoFinale(oraDelGiorno(8, 45));
    for (std::int16_t i = 1; i <= 3; ++i) {
        b().Ramo(i).theDatiTraffico().NumSegmentiTempo(2);
        b().Ramo(i).theComposizioneTraffico().NumSegmentiTempo(2);
    }
    EXPECT_EQ(diverse().note,
              (std::vector<std::string>{"Segmenti di tempo solo in A: 2 (08:00 - 08:15, 08:45 - 09:00)."}));
}

TEST_F(Varianti, SegmentsOfAnotherLengthAreNotCompared) {
    studi(3, analisi::tabella);
    b().SegmentoTempo(oraDelGiorno(0, 10));
    b().Ramo(1).theDatiTraffico().FlussoSegmento(7.0F, 0, 0);
    b().Ramo(1).theComposizioneTraffico().CategoriaSegmento(7.0F, 0, 0);
    const DifferenzeProgetti d = diverse();
    ASSERT_EQ(d.dati.size(), 1U);
    EXPECT_EQ(d.dati[0].campo, "SegmentoTempo");
    EXPECT_EQ(d.note, (std::vector<std::string>{
                          "I segmenti di tempo non coincidono (A: 4 di 15 minuti dalle 08:00; B: 4 di 10 minuti dalle "
                          "08:00): i dati per segmento non si confrontano."}));
}

TEST_F(Varianti, CategoriesOfASegmentAreToldByTheirClass) {
    b().Ramo(3).theComposizioneTraffico().CategoriaSegmento(7.0F, 2, 5);
    const Differenza d = unica();
    EXPECT_EQ(d.campo, "Rami[3].theComposizioneTraffico.CategoriaSegmento[3][6]");
    EXPECT_EQ(d.nome, "Veicoli a due ruote [veic], 08:30 - 08:45");
    EXPECT_FALSE(d.usoA || d.usoB);
}

TEST_F(Varianti, MatricesOfDifferentKindsAreComparedInShares) {
    // 25 and 25 of 50 vehicles are half of the row each.
    b().TipoMatriceSvolte(1);
    for (std::int16_t o = 1; o <= 3; ++o) {
        for (std::int16_t d = 1; d <= 3; ++d) {
            b().MatriceSvolte(o == d ? 0.0F : 50.0F, o, d);
        }
    }
    EXPECT_EQ(diverse().dati.size(), 1U);
    b().MatriceSvolte(47.5F, 2, 1);
    b().MatriceSvolte(52.5F, 2, 3);
    const DifferenzeProgetti d = diverse();
    ASSERT_EQ(d.dati.size(), 3U);
    EXPECT_EQ(d.dati[1].campo, "MatriceSvolte[2][1]");
    EXPECT_EQ(d.dati[1].nome, "Svolta da B a A [%]");
    EXPECT_EQ(d.dati[1].testoA, "50,00");
    EXPECT_EQ(d.dati[1].testoB, "47,50");
    EXPECT_EQ(d.dati[1].testoScarto, "-2,50");
    ASSERT_EQ(d.note.size(), 1U);
    EXPECT_NE(d.note[0].find("si confrontano le quote di ogni riga"), std::string::npos);
}

TEST_F(Varianti, AMatrixOfAnUnknownKindIsOneOfVehicles) {
    b().TipoMatriceSvolte(7);
    EXPECT_EQ(unica().testoB, "non previsto (7)");
    b().MatriceSvolte(a().MatriceSvolte(1, 2) + 3.0F, 1, 2);
    const DifferenzeProgetti d = diverse();
    ASSERT_EQ(d.dati.size(), 2U);
    EXPECT_EQ(d.dati[1].nome, "Svolta da A a B [veic]");
    EXPECT_EQ(d.dati[1].testoScarto, "+3");
    EXPECT_TRUE(d.note.empty());
}

TEST_F(Varianti, LegsThatOneProjectHasMoreAreNamed) {
    creaStudio(fintaB, 5, analisi::curva);
    const DifferenzeProgetti d = diverse();
    ASSERT_EQ(d.note.size(), 1U);
    EXPECT_EQ(d.note[0], "I rami sono 3 in A e 5 in B; solo in B: ramo D (Ramo D), ramo E (Ramo E).");
    ASSERT_EQ(d.dati.size(), 1U);
    EXPECT_EQ(d.dati[0].campo, "NumeroRami");
    ASSERT_TRUE(assicuraRisultati(fintaA.app));
    ASSERT_TRUE(assicuraRisultati(fintaB.app));
    const ConfrontoEsiti e = esiti();
    ASSERT_EQ(e.ingressi.size(), 5U);
    EXPECT_EQ(riga(e.ingressi[4], "Coeff_Sat").a.testo, "-");
    EXPECT_NE(riga(e.ingressi[4], "Coeff_Sat").b.testo, "-");
    EXPECT_EQ(riga(e.ingressi[4], "Coeff_Sat").giudizio, Giudizio::nessuno);
    EXPECT_EQ(riga(e.ingressi[4], "Coeff_Sat").testoScarto, "");
}

/// Records of one segment for every leg: flow, capacity, saturation, queue, delay.
void registra(Rotonda& rotonda, const Iterazione& record) {
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        for (std::int16_t s = 1; s <= 4; ++s) {
            rotonda.Ramo(i).theDatiTraffico().SetIterazione(s, record);
        }
        rotonda.Ramo(i).CapacitaUltima(1000.0);
    }
}

TEST_F(Varianti, TheBetterOfTwoFiguresFollowsTheirQuantity) {
    registra(a(), {10.0F, 1000.0F, 0.6F, 4.0F, 12.0F});
    registra(b(), {10.0F, 900.0F, 0.7F, 5.0F, 26.0F});
    const ConfrontoEsiti e = esiti();
    for (const char* peggiore : {"Coeff_Sat", "Capacita", "Coda", "RitardoMedio", "RitardoMassimo", "LOSMassimo",
                                 "riserva", "riservaVeicoli", "LOS"}) {
        EXPECT_EQ(riga(e.ingressi[0], peggiore).giudizio, Giudizio::peggiore) << peggiore;
    }
    EXPECT_EQ(riga(e.ingressi[0], "CapacitaUltima").giudizio, Giudizio::uguale);
    for (const char* senza : {"segmentoSat", "oraDiPunta", "Flusso", "FlussoOrario"}) {
        EXPECT_EQ(riga(e.ingressi[0], senza).giudizio, Giudizio::nessuno) << senza;
    }
    EXPECT_EQ(riga(e.ingressi[0], "LOS").a.testo, "B");
    EXPECT_EQ(riga(e.ingressi[0], "LOS").b.testo, "D");
    EXPECT_EQ(riga(e.ingressi[0], "Capacita").testoScarto, "-100,00");
    EXPECT_EQ(riga(e.nodo, "Capacita").testoScarto, "-300,00");
    const ConfrontoEsiti rovescio = confrontaEsiti(esitiVariante(b()), esitiVariante(a()));
    EXPECT_EQ(rovescio.quante(Giudizio::migliore), e.quante(Giudizio::peggiore));
    EXPECT_EQ(rovescio.quante(Giudizio::peggiore), 0);
}

TEST_F(Varianti, FiguresThatShowAlikeAreEqual) {
    registra(a(), {10.0F, 1000.0F, 0.60001F, 4.01F, 12.01F});
    registra(b(), {10.0F, 1000.0F, 0.60002F, 4.02F, 12.02F});
    const RigaVarianti r = riga(esiti().ingressi[0], "Coeff_Sat");
    EXPECT_EQ(r.giudizio, Giudizio::uguale);
    EXPECT_EQ(r.testoScarto, "+0,000");
    EXPECT_EQ(std::get<float>(*r.scarto), 0.00001F);
    EXPECT_EQ(esiti().quante(Giudizio::peggiore), 0);
}

TEST_F(Varianti, AStudyOfSaturationAloneHasTheUltimateCapacityOnly) {
    a().TipoAnalisi(analisi::saturazione);
    ASSERT_TRUE(assicuraRisultati(fintaA.app));
    ASSERT_TRUE(assicuraRisultati(fintaB.app));
    const ConfrontoEsiti e = esiti();
    EXPECT_EQ(riga(e.ingressi[0], "Coeff_Sat").a.testo, "-");
    EXPECT_EQ(riga(e.nodo, "riserva").a.testo, "-");
    EXPECT_EQ(riga(e.nodo, "riserva").giudizio, Giudizio::nessuno);
    EXPECT_EQ(riga(e.ingressi[0], "CapacitaUltima").giudizio, Giudizio::uguale);
}

TEST_F(Varianti, WithoutFlowsThereIsNoIndexAndNoPeakHour) {
    registra(a(), {0.0F, 1000.0F, 0.0F, 0.0F, 0.0F});
    registra(b(), {0.0F, 1000.0F, 0.0F, 0.0F, 0.0F});
    for (Rotonda* rotonda : {&a(), &b()}) {
        for (std::int16_t i = 1; i <= 3; ++i) {
            rotonda->Ramo(i).theDatiTraffico().FlussoOrario(0.0F);
        }
    }
    const ConfrontoEsiti e = esiti();
    for (const char* chiave : {"ISR", "oraDiPunta", "riserva", "LOS", "ingressoPeggiore", "segmentoSat", "Ritardo"}) {
        EXPECT_EQ(riga(e.nodo, chiave).a.testo, "-") << chiave;
    }
    EXPECT_EQ(riga(e.nodo, "Coeff_Sat").a.testo, "0,000");
}

TEST_F(Varianti, TheTextMarksTheJudgementBySigns) {
    registra(a(), {10.0F, 1000.0F, 0.6F, 4.0F, 12.0F});
    registra(b(), {10.0F, 1100.0F, 0.6F, 5.0F, 12.0F});
    const ConfrontoVarianti confronto{.a = a(), .b = b(), .nomeA = "a.klv", .nomeB = "b.klv", .esiti = esiti()};
    const Tabella t = tabellaEsiti(confronto);
    const auto segno = [&](const std::string& nome) {
        for (int r = 0; r < t.righe(); ++r) {
            if (t.testo(r, 0) == nome) {
                return t.testo(r, 4);
            }
        }
        return std::string{"?"};
    };
    EXPECT_EQ(segno("Saturazione massima"), "(=) uguale");
    EXPECT_EQ(segno("Capacità in quel segmento [veic/h]"), "(+) migliore");
    EXPECT_EQ(segno("Coda massima [veic]"), "(-) peggiore");
    EXPECT_EQ(segno("Flusso nell'ora di punta [veic/h]"), "");
    EXPECT_EQ(t.testo(1, 0), "Ramo A: Ramo A");
}

TEST(Scarto, IsThatOfTheShortestTexts) {
    EXPECT_EQ(std::get<float>(*scarto(4.2F, 4.5F)), 0.3F);
    EXPECT_EQ(std::get<double>(*scarto(1.0, 0.25)), -0.75);
    EXPECT_EQ(std::get<double>(*scarto(4.2, 4.5)), 0.3);
    EXPECT_EQ(std::get<double>(*scarto(100000.2, 100000.3)), 0.1);
    EXPECT_EQ(std::get<double>(*scarto(0.0, 1e-20)), 1e-20);
    // What was worked out keeps every digit.
    EXPECT_EQ(std::get<double>(*scarto(4.265589793523152, 3.990836262702942)), 3.990836262702942 - 4.265589793523152);
    EXPECT_EQ(std::get<std::int16_t>(*scarto(std::int16_t{3}, std::int16_t{5})), 2);
    EXPECT_FALSE(scarto(std::int16_t{-32768}, std::int16_t{32767}).has_value());
    EXPECT_FALSE(scarto(-3e38F, 3e38F).has_value());
    EXPECT_FALSE(scarto(1.0, 1.0F).has_value());
    EXPECT_FALSE(scarto(std::string{"a"}, std::string{"b"}).has_value());
    EXPECT_FALSE(scarto(true, false).has_value());
}

}  // namespace
}  // namespace kelvo

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <limits>
#include <nlohmann/json.hpp>
#include <type_traits>
#include <vector>

#include "base/guasto.h"
#include "testiKlv.h"

namespace kelvo::prove {
namespace {

/// The project of tests/model/dati/completo.klv, put together by its accessors.
void componi(Rotonda& r) {
    r.StatoAvanzamento("Studio preliminare");
    r.Localita("Località Ponte");
    r.Comune("Forlì");
    r.Provincia("FC");
    r.NomeFile("completo");
    r.ValorePercentile(90.5F);
    r.UsaPercentile(true);
    r.OttimizzazioneGeometrica(true);
    r.CondizioniNotturne(true);
    r.TipoFlusso(1);
    r.TipoMatriceSvolte(1);
    r.TipoAnalisi(2);
    r.EMailProfessionista("ing@example.org");
    r.TelefonoProfessionista("0543 000000");
    r.CittaProfessionista("Cesena");
    r.CAPProfessionista("47521");
    r.IndirizzoProfessionista("Via Emilia 1");
    r.NomeProfessionista("Ada Bianchi");
    r.ProvinciaProfessionista("FC");
    r.SegmentoTempo(oraDelGiorno(0, 20));
    r.TempoFinale(oraDelGiorno(8, 10));
    r.TempoIniziale(oraDelGiorno(7, 30));
    r.Note("prima riga\nseconda \"riga\"\t\\");
    r.Data(giornoCalendario(2026, 11, 21));
    r.Titolo("Rotatoria di esempio");
    r.NumeroRami(3);
    const float celle[3][3] = {{0, 60.5F, 39.5F}, {25, 0, 75}, {50, 50, 0}};
    for (std::int16_t i = 1; i <= 3; ++i) {
        for (std::int16_t j = 1; j <= 3; ++j) {
            r.MatriceSvolte(celle[i - 1][j - 1], i, j);
        }
    }
}

/// Fills a leg: its numbers count up from 100 times its position, each kind with a fraction of its own.
void componiRamo(Ramo& r, std::int16_t i) {
    const auto base = static_cast<float>(100 * i);
    r.Descrizione(std::string("Via ") + "ABC"[i - 1]);
    r.LarghezzaIngresso(base + 0.25F);
    r.SemiLarghezza(base + 1.25F);
    r.LunghezzaSvasatura(base + 2.25F);
    r.AngoloConflitto(base + 3.25F);
    r.RaggioIngresso(base + 4.25F);
    r.DiametroInscritto(base + 5.25F);
    r.AttraversamentoPedonale(i == 2);
    DatiTraffico& t = r.theDatiTraffico();
    t.NumSegmentiTempo(2);
    t.FlussoMedio(base + 10.5F);
    t.FlussoOrario(base + 11.5F);
    t.FlussoTotale(base + 12.5F);
    t.FlussoTempo3(base + 13.5F);
    t.FlussoTempo2(base + 14.5F);
    t.FlussoTempo1(base + 15.5F);
    t.Tempo3(oraDelGiorno(8, i));
    t.Tempo2(oraDelGiorno(7, 50 + i, 30));
    t.Tempo1(oraDelGiorno(7, 30 + i));
    t.FlussoSegmento(base + 20.0F, 0, 0);
    t.FlussoSegmento(base + 21.75F, 1, 0);
}

void componiComposizione(ComposizioneTraffico& c, std::int16_t i) {
    const auto base = static_cast<float>(100 * i);
    c.NumSegmentiTempo(2);
    c.VEAutovetture(base + 30);
    c.VEVeicoliDueRuote(base + 31);
    c.VERoulotte(base + 32);
    c.VECamper(base + 33);
    c.VEPullman(base + 34);
    c.VEAutotreni(base + 35);
    c.VEAutoarticolati(base + 36);
    c.Autovetture(base + 37);
    c.VeicoliDueRuote(base + 38);
    c.Roulotte(base + 39);
    c.Camper(base + 40);
    c.Pullman(base + 41);
    c.Autotreni(base + 42);
    c.Autoarticolati(base + 43);
    for (std::int16_t s = 0; s < 2; ++s) {
        for (std::int16_t k = 0; k < 7; ++k) {
            c.CategoriaSegmento(base + static_cast<float>(50 + 10 * s + k), s, k);
        }
    }
}

void componiAnalisi(AnalisiMarginale& a, std::int16_t i) {
    a.DescrizioneCondizioniEsterne("pioggia " + std::to_string(i));
    a.CondizioniEsterne(-i - 0.125);
    a.UsaCondizioniEsterne(i == 1);
    a.AttraversamentoPedonale(i + 0.0625);
    a.UsaSemiLarghezza(i == 1);
    a.UsaRaggioCurvatura(i == 2);
    a.UsaLunghezzaSvasatura(i == 3);
    a.UsaLarghezzaIngresso(i == 1);
    a.UsaDiametroInscritto(i == 2);
    a.UsaAngoloConflitto(i == 3);
    a.LarghezzaIngresso(i == 1 ? 180.1 : i == 2 ? 280.1 : 380.1);
    a.SemiLarghezza(i == 1 ? 181.1 : i == 2 ? 281.1 : 381.1);
    a.LungSvasatura(i == 1 ? 182.1 : i == 2 ? 282.1 : 382.1);
    a.AngoloConflitto(i == 1 ? 183.1 : i == 2 ? 283.1 : 383.1);
    a.RaggioCurvatura(i == 1 ? 184.1 : i == 2 ? 284.1 : 384.1);
    a.DiametroInscritto(i == 1 ? 185.1 : i == 2 ? 285.1 : 385.1);
}

TEST(ProveFormaKlv, AProjectIsWrittenAsTheGoldenFile) {
    Rotonda r;
    componi(r);
    for (std::int16_t i = 1; i <= 3; ++i) {
        Ramo& ramo = r.AddRamo(std::to_string(i) + "Ramo");
        componiRamo(ramo, i);
        componiComposizione(ramo.theComposizioneTraffico(), i);
        componiAnalisi(ramo.theAnalisiMarginale(), i);
    }
    EXPECT_EQ(r.TestoFile(), testoCompleto());
    Rotonda letta;
    const EsitoLettura esito = carica(letta, testoCompleto());
    ASSERT_TRUE(esito.esito) << esito.messaggio;
    confronta(r, letta);
    EXPECT_EQ(letta.TestoFile(), testoCompleto());
}

/// Names of the members of an object, in the order of the file.
std::vector<std::string> chiavi(const nlohmann::ordered_json& oggetto) {
    std::vector<std::string> nomi;
    for (const auto& membro : oggetto.items()) {
        nomi.push_back(membro.key());
    }
    return nomi;
}

template <class O>
std::vector<std::string> nomi() {
    std::vector<std::string> elenco;
    perOgniProprieta(static_cast<const O*>(nullptr), [&](const auto& p) { elenco.emplace_back(p.nome); });
    return elenco;
}

std::vector<std::string> unisci(std::vector<std::string> a, const std::vector<std::string>& b,
                                const std::vector<std::string>& c = {}) {
    a.insert(a.end(), b.begin(), b.end());
    a.insert(a.end(), c.begin(), c.end());
    return a;
}

TEST(ProveFormaKlv, KeysStandInTheOrderOfTheModel) {
    Rotonda r;
    riempi(r, 3, 2);
    const auto json = nlohmann::ordered_json::parse(r.TestoFile());
    EXPECT_EQ(chiavi(json), unisci({"formato", "versione"}, nomi<Rotonda>(), {"NumeroRami", "MatriceSvolte", "Rami"}));
    const auto& ramo = json["Rami"][1];
    EXPECT_EQ(chiavi(ramo),
              unisci({"Key"}, nomi<Ramo>(), {"theDatiTraffico", "theComposizioneTraffico", "theAnalisiMarginale"}));
    EXPECT_EQ(chiavi(ramo["theDatiTraffico"]), unisci({"NumSegmentiTempo"}, nomi<DatiTraffico>(), {"FlussoSegmento"}));
    EXPECT_EQ(chiavi(ramo["theComposizioneTraffico"]),
              unisci({"NumSegmentiTempo"}, nomi<ComposizioneTraffico>(), {"CategoriaSegmento"}));
    EXPECT_EQ(chiavi(ramo["theAnalisiMarginale"]), nomi<AnalisiMarginale>());
}

template <class O>
void confrontaJson(const O& oggetto, const nlohmann::ordered_json& json) {
    perOgniProprieta(&oggetto, [&](const auto& p) {
        SCOPED_TRACE(p.nome);
        const auto valore = (oggetto.*p.leggi)();
        using T = std::decay_t<decltype(valore)>;
        using Proprieta = std::decay_t<decltype(p)>;
        if constexpr (std::is_same_v<Proprieta, P<O, DataOra, Genere::ora>>) {
            const auto secondi = static_cast<long>(valore * 86400.0 + 0.5);
            const std::string ore = fmt::format("{:02}:{:02}", secondi / 3600, secondi / 60 % 60);
            EXPECT_EQ(json[p.nome], secondi % 60 == 0 ? ore : ore + fmt::format(":{:02}", secondi % 60));
        } else if constexpr (std::is_same_v<Proprieta, P<O, DataOra, Genere::giorno>>) {
            const PartiData parti = partiDi(valore);
            EXPECT_EQ(json[p.nome], fmt::format("{}-{:02}-{:02}", parti.anno, parti.mese, parti.giorno));
        } else {
            EXPECT_EQ(json[p.nome].template get<T>(), valore);
        }
    });
}

TEST(ProveFormaKlv, EachKeyHoldsItsOwnProperty) {
    Rotonda r;
    riempi(r, 4, 3);
    const auto json = nlohmann::ordered_json::parse(r.TestoFile());
    confrontaJson(r, json);
    EXPECT_EQ(json["NumeroRami"], 4);
    EXPECT_EQ(json["MatriceSvolte"][1][3].get<float>(), r.MatriceSvolte(2, 4));
    const Ramo& ramo = r.Ramo(3);
    const auto& jsonRamo = json["Rami"][2];
    EXPECT_EQ(jsonRamo["Key"], "3Ramo");
    confrontaJson(ramo, jsonRamo);
    confrontaJson(ramo.theDatiTraffico(), jsonRamo["theDatiTraffico"]);
    confrontaJson(ramo.theComposizioneTraffico(), jsonRamo["theComposizioneTraffico"]);
    confrontaJson(ramo.theAnalisiMarginale(), jsonRamo["theAnalisiMarginale"]);
    EXPECT_EQ(jsonRamo["theDatiTraffico"]["FlussoSegmento"][2].get<float>(),
              ramo.theDatiTraffico().FlussoSegmento(2, 0));
    EXPECT_EQ(jsonRamo["theComposizioneTraffico"]["CategoriaSegmento"][1][6].get<float>(),
              ramo.theComposizioneTraffico().CategoriaSegmento(1, 6));
}

TEST(ProveFormaKlv, MinusZeroIsWrittenAsZero) {
    Rotonda r;
    riempi(r, 3, 1);
    r.ValorePercentile(-0.0F);
    r.Ramo(1).theAnalisiMarginale().CondizioniEsterne(-0.0);
    EXPECT_NE(r.TestoFile().find("\"ValorePercentile\": 0,\n"), std::string::npos);
    EXPECT_NE(r.TestoFile().find("\"CondizioniEsterne\": 0,\n"), std::string::npos);
}

TEST(ProveFormaKlv, NumbersAreReadAndWrittenWithAPointUnderAnyLocale) {
    Rotonda r;
    riempi(r, 3, 2);
    r.chiaviIgnote.emplace_back("estranea", "[1.5, 2.25e-3]");
    const std::string atteso = r.TestoFile();
    const std::string prima = std::setlocale(LC_NUMERIC, nullptr);
    if (std::setlocale(LC_NUMERIC, "it_IT.UTF-8") == nullptr && std::setlocale(LC_NUMERIC, "de_DE.UTF-8") == nullptr) {
        GTEST_SKIP() << "no locale with a decimal comma on this system";
    }
    const std::string scritto = r.TestoFile();
    Rotonda letta;
    const EsitoLettura esito = carica(letta, atteso);
    const std::string riscritto = letta.TestoFile();
    std::setlocale(LC_NUMERIC, prima.c_str());
    EXPECT_EQ(scritto, atteso);
    EXPECT_TRUE(esito.esito) << esito.messaggio;
    EXPECT_EQ(riscritto, atteso);
}

TEST(ProveFormaKlv, ForeignKeysAreKeptAtEveryLevelInTheirOrderBehindTheKnownOnes) {
    std::string testo = testoCompleto();
    testo = sostituito(testo, "  \"versione\": 1,\n",
                       "  \"versione\": 1,\n  \"zeta\": {\"b\": [1, 2.50, -0.0, 12345678901234567890123], \"a\": {}},\n"
                       "  \"alfa\": null,\n");
    testo = sostituito(testo, "\"Key\": \"1Ramo\",", "\"K\": 1.25, \"Key\": \"1Ramo\",");
    testo = sostituito(testo, "\"FlussoMedio\": 110.5,", "\"traffico è\": \"à\\n\", \"FlussoMedio\": 110.5,");
    testo = sostituito(testo, "\"VECamper\": 133,", "\"composizione\": [], \"VECamper\": 133,");
    testo = sostituito(testo, "\"CondizioniEsterne\": -1.125,", "\"CondizioniEsterne\": -1.125, \"analisi\": true,");
    Rotonda r;
    const EsitoLettura esito = carica(r, testo);
    ASSERT_TRUE(esito.esito) << esito.messaggio;

    std::string atteso = testoCompleto();
    atteso = sostituito(atteso, "\n  ]\n}\n",
                        "\n  ],\n  \"zeta\": {\"b\": [1, 2.50, -0.0, 12345678901234567890123], \"a\": {}},\n"
                        "  \"alfa\": null\n}\n");
    atteso = sostituito(atteso, "185.1\n      }\n    },",
                        "185.1,\n        \"analisi\": true\n      },\n      \"K\": 1.25\n    },");
    atteso = sostituito(atteso, "[120, 121.75]\n", "[120, 121.75],\n        \"traffico è\": \"à\\n\"\n");
    atteso = sostituito(atteso, "166]\n        ]\n", "166]\n        ],\n        \"composizione\": []\n");
    EXPECT_EQ(r.TestoFile(), atteso);
    r.Clear();
    EXPECT_TRUE(r.chiaviIgnote.empty());
}

TEST(ProveFormaKlv, AWholeDateInTheWindowKeepsItsTimeOfDay) {
    Rotonda r;
    riempi(r, 3, 2);
    r.TempoIniziale(giornoCalendario(2026, 11, 21) + oraDelGiorno(7, 45));
    EXPECT_NE(r.TestoFile().find("\"TempoIniziale\": \"07:45\""), std::string::npos);
}

TEST(ProveFormaKlv, WrongUtf8IsWrittenAsTheReplacementCharacter) {
    Rotonda r;
    riempi(r, 3, 0);
    r.Titolo(
        "a\xFF"
        "b");
    Rotonda letta;
    ASSERT_TRUE(carica(letta, r.TestoFile()).esito);
    EXPECT_EQ(letta.Titolo(),
              "a\xEF\xBF\xBD"
              "b");
}

std::string guastoScrittura(const Rotonda& r) {
    try {
        static_cast<void>(r.TestoFile());
    } catch (const Guasto& guasto) {
        return guasto.descrizione();
    }
    return {};
}

TEST(ProveFormaKlv, WhatCouldNotBeReadBackIsNotWritten) {
    Rotonda r;
    EXPECT_EQ(guastoScrittura(r), "il progetto non ha ancora rami");
    r.AddRamo("1Ramo");
    EXPECT_EQ(guastoScrittura(r), "il progetto ha 1 rami su 4");

    riempi(r, 3, 2);
    r.Ramo(2).theAnalisiMarginale().SemiLarghezza(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(guastoScrittura(r), "Rami[2].theAnalisiMarginale.SemiLarghezza non è un numero finito");

    riempi(r, 3, 2);
    r.MatriceSvolte(std::numeric_limits<float>::infinity(), 1, 2);
    EXPECT_EQ(guastoScrittura(r), "MatriceSvolte non è un numero finito");

    riempi(r, 3, 2);
    r.Ramo(3).theDatiTraffico().NumSegmentiTempo(3);
    EXPECT_EQ(guastoScrittura(r), "il ramo 3 ha 3 segmenti di traffico e 2 di composizione");

    riempi(r, 3, 301);
    EXPECT_EQ(guastoScrittura(r), "il ramo 1 ha 301 segmenti di tempo, più di 300");

    riempi(r, 3, 2);
    r.Data(std::numeric_limits<double>::infinity());
    EXPECT_EQ(guastoScrittura(r), "Data è fuori dal calendario");

    riempi(r, 3, 2);
    r.Note(std::string(4UL * 1024UL * 1024UL, 'n'));
    EXPECT_EQ(guastoScrittura(r), "il progetto supera 4 MiB");

    riempi(r, 3, 2);
    r.chiaviIgnote.emplace_back("profonda", std::string(16, '[') + std::string(16, ']'));
    EXPECT_THAT(guastoScrittura(r), testing::HasSubstr("più di 16 livelli"));

    r.Clear();
    r.NumeroRami(3);
    for (const char* chiave : {"1Ramo", "Ramo2", "2Ramo"}) {
        r.AddRamo(chiave);
    }
    EXPECT_EQ(guastoScrittura(r), "la chiave \"2Ramo\" non porta la cifra del ramo 3");
}

}  // namespace
}  // namespace kelvo::prove

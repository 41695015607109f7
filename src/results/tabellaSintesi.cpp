#include <array>

#include "base/numeri.h"
#include "base/testo.h"
#include "results/grandezze.h"
#include "results/sintesiNodo.h"
#include "results/tabellaVerifiche.h"

namespace kelvo {

namespace {

struct Colonna {
    std::string_view intestazione;
    int larghezza = 0;  ///< twips
};

constexpr std::array<Colonna, colonneSintesi> colonne{{
    {"", 2000},
    {"Ora di punta", 1300},
    {"Flusso [veic/h]", 1100},
    {"Capacità [veic/h]", 1100},
    {"Riserva 1 - x", 1000},
    {"Riserva [veic/h]", 1100},
    {"Saturazione massima", 1250},
    {"nel segmento", 1300},
    {"Ritardo medio [s/veic]", 1250},
    {intestazioneLivello, 800},
}};
constexpr std::string_view nomeNodo = "Nodo";
constexpr std::string_view niente = "-";

void colora(Cella& cella, Colore sfondo, Colore inchiostro) {
    cella.sfondo = sfondo;
    cella.inchiostro = inchiostro;
}

void coloraRiga(Tabella& tabella, int riga, bool nodo) {
    for (int c = 0; c < colonneSintesi; ++c) {
        Cella& cella = tabella.cella(riga, c);
        colora(cella, colori::dati, colori::nero);
        cella.grassetto = nodo;
    }
    colora(tabella.cella(riga, 0), nodo ? colori::intestazione : colori::nomeIngresso, colori::bianco);
}

/// A figure that asks for attention.
void evidenzia(Cella& cella) {
    cella.sfondo = colori::sopraSoglia;
    cella.grassetto = true;
}

void scriviRiga(const Rotonda& rotonda, const VoceSintesi& voce, int riga, Tabella& t) {
    const auto testo = [&](int colonna, const std::string& valore) { t.cella(riga, colonna).testo = valore; };
    const bool ora = voce.segmento > 0;
    const auto oNiente = [](bool presente, auto valore) { return presente ? valore() : std::string{niente}; };
    testo(1, oNiente(ora, [&] { return testoOra(rotonda, voce.segmento, voce.segmenti); }));
    testo(2, formatta(voce.Flusso, "#0.00"));
    testo(3, oNiente(ora, [&] { return formatta(voce.Capacita, "#0.00"); }));
    testo(4, oNiente(voce.riserva.has_value(), [&] { return formatta(*voce.riserva, "#0.000"); }));
    testo(5, oNiente(ora, [&] { return formatta(voce.riservaVeicoli, "#0.00"); }));
    testo(colonnaSatSintesi, formatta(voce.Coeff_Sat, "#0.000"));
    testo(7, oNiente(voce.segmentoSat > 0, [&] { return testoIntervallo(rotonda, voce.segmentoSat); }));
    testo(8, oNiente(ora, [&] { return formatta(voce.Ritardo, "#0.0"); }));
    testo(colonnaLivelloSintesi, voce.livello);
    if (voce.saturazioneAlta) {
        evidenzia(t.cella(riga, colonnaSatSintesi));
        evidenzia(t.cella(riga, colonnaSatSintesi + 1));
    }
    // As they are shown: a share may read 0 beside vehicles that are short.
    for (const int colonna : {4, 5}) {
        if (leggiNumero(t.testo(riga, colonna)).value_or(0.0) < 0.0) {
            evidenzia(t.cella(riga, colonna));
        }
    }
}

}  // namespace

Tabella tabellaSintesiVuota(const Rotonda& rotonda) {
    Tabella tabella(rotonda.NumeroRami() + 2, colonneSintesi);
    for (std::size_t c = 0; c < colonne.size(); ++c) {
        Cella& cella = tabella.cella(0, static_cast<int>(c));
        cella.testo = colonne[c].intestazione;
        colora(cella, colori::intestazione, colori::bianco);
        tabella.larghezze.push_back(colonne[c].larghezza);
    }
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        coloraRiga(tabella, i, false);
        tabella.cella(i, 0).testo = rotonda.Ramo(i).Descrizione();
    }
    const int ultima = rotonda.NumeroRami() + 1;
    coloraRiga(tabella, ultima, true);
    tabella.cella(ultima, 0).testo = nomeNodo;
    return tabella;
}

Tabella tabellaSintesi(const Rotonda& rotonda, const SintesiNodo& sintesi) {
    Tabella tabella = tabellaSintesiVuota(rotonda);
    int riga = 0;
    for (const VoceSintesi& voce : sintesi.ingressi) {
        scriviRiga(rotonda, voce, ++riga, tabella);
    }
    scriviRiga(rotonda, sintesi.nodo, ++riga, tabella);
    return tabella;
}

OrnamentoCella ornamentoSintesi(const Tabella& tabella, Posto posto) {
    OrnamentoCella ornamento;
    const Cella& cella = tabella.cella(posto.riga, posto.colonna);
    if (posto.colonna == colonnaLivelloSintesi) {
        ornamento.allineamento = AllineamentoCella::centro;
    }
    if (posto.riga == 0 || cella.testo.empty()) {
        return ornamento;
    }
    if (posto.colonna == colonnaLivelloSintesi) {
        ornamento.distintivo = distintivoLivello(cella.testo);
    } else if (posto.colonna == colonnaSatSintesi && cella.sfondo == colori::sopraSoglia) {
        ornamento.segno = OrnamentoCella::Segno::attenzione;
    }
    if (cella.sfondo == colori::sopraSoglia) {
        ornamento.barra = tinta::errore;
    }
    return ornamento;
}

std::string testoSintesi(const Tabella& tabella, const std::vector<std::string>& parole, const std::string& nomeFile,
                         DataOra momento) {
    std::string testo = "Risultati: Sintesi nodo";
    testo.append(fineRiga).append(fineRiga);
    testo.append(testoTabella(tabella, {.allineamento = Allineamento::destra, .rigaVuotaPrima = {}}));
    testo.append(fineRiga);
    for (const std::string& riga : parole) {
        testo.append(riga).append(fineRiga);
    }
    return testo.append(parole.empty() ? "" : fineRiga).append(righeDiChiusura(momento, nomeFile));
}

}  // namespace kelvo

#include "results/confronto.h"

#include <algorithm>
#include <cmath>

#include "base/guasto.h"
#include "base/testo.h"
#include "results/graficiRamo.h"
#include "results/livelloServizio.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Analizzatore";
constexpr const char* variabile = "Variabile prestazionale: ";
constexpr const char* didascaliaFigura = "Confronto ingressi - ";
constexpr const char* intervallo = "Intervallo di tempo: ";
constexpr const char* ingresso = "Ingresso";
constexpr const char* linea = "---------------";
constexpr const char* livelli = "L.O.S. (Level of service) - HCM Americano";
constexpr const char* segnoNota = " (*)";
constexpr const char* invito = "Calcola (F9)";
}  // namespace testi

constexpr double minutiGiorno = 1440.0;
constexpr int passoCima = 5;
constexpr double sopraSaturazione = 1.05;
// Column widths in twips: the name of an entry, an instant.
constexpr int larghezzaNome = 2000;
constexpr int larghezzaIstante = 900;

const VariabileConfronto& voce(const SceltaConfronto& scelta) {
    return variabiliConfronto.at(static_cast<std::size_t>(scelta.variabile));
}

std::size_t posto(UnitaFlussi unita) {
    return unita == UnitaFlussi::ora ? 0 : 1;
}

float valoreDi(const Iterazione& record, const SceltaConfronto& scelta) {
    const VariabileConfronto& v = voce(scelta);
    const float valore = record.*v.campo;
    if (v.livello) {
        return static_cast<float>(codiceLivello(livelloDiRitardo(valore)));
    }
    const double esatto = static_cast<double>(valore);
    const bool ora = scelta.unita == UnitaFlussi::ora;
    return aSingolo(ora ? esatto * v.perOra : esatto / v.alMinuto, [&] { return nomeVariabile(scelta); });
}

void colora(Cella& cella, Colore sfondo, Colore inchiostro) {
    cella.sfondo = sfondo;
    cella.inchiostro = inchiostro;
}

}  // namespace

std::string nomeVariabile(const SceltaConfronto& scelta) {
    return std::string{voce(scelta).nomi[posto(scelta.unita)]};
}

float MassimoGrafico(int variabile, float massimo) {
    if (variabile == variabileLivello) {
        return static_cast<float>(codiceLivello("F"));  // the seven labels of its axis stand at the codes
    }
    const auto m = static_cast<double>(massimo);
    if (variabile == variabileSaturazione) {
        return static_cast<float>(m * sopraSaturazione);
    }
    const double resto = std::fmod(std::floor(m), passoCima);
    return static_cast<float>(arrotondaPari(resto == 0.0 ? m : m + passoCima - resto));
}

Confronto::Confronto(const Rotonda& rotonda) {
    if (rotonda.NumeroRami() < 1) {
        return;
    }
    const int passo = minutoCampo(rotonda.SegmentoTempo());
    const std::int16_t primi = rotonda.Ramo(std::int16_t{1}).theDatiTraffico().NumSegmentiTempo();
    for (int s = 0; s < primi; ++s) {
        istanti_.push_back(testoHHNN(rotonda.TempoIniziale() + s * passo / minutiGiorno));
    }
    for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
        nomi_.push_back(rotonda.Ramo(i).Descrizione());
        const DatiTraffico& traffico = rotonda.Ramo(i).theDatiTraffico();
        std::vector<Iterazione>& suoi = record_.emplace_back();
        for (std::int16_t s = 1; s <= traffico.NumSegmentiTempo(); ++s) {
            suoi.push_back(traffico.GetIterazione(s));
        }
    }
}

const Iterazione& Confronto::record(int ingresso, int segmento) const {
    static constexpr Iterazione vuoto{};
    if (ingresso < 1 || ingresso > ingressi() || segmento < 1 || segmento > segmenti()) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo, "confronto degli ingressi");
    }
    const std::vector<Iterazione>& suoi = record_[static_cast<std::size_t>(ingresso) - 1];
    const auto s = static_cast<std::size_t>(segmento);
    return s <= suoi.size() ? suoi[s - 1] : vuoto;
}

float Confronto::valore(const SceltaConfronto& scelta, int ingresso, int segmento) const {
    return valoreDi(record(ingresso, segmento), scelta);
}

std::string Confronto::testo(const SceltaConfronto& scelta, int ingresso, int segmento) const {
    const Iterazione& r = record(ingresso, segmento);
    const VariabileConfronto& v = voce(scelta);
    return v.livello ? std::string{livelloDiRitardo(r.*v.campo)} : formatta(valoreDi(r, scelta), v.formato);
}

float Confronto::massimo(const SceltaConfronto& scelta) const {
    float trovato = 0.0F;
    for (const std::vector<Iterazione>& suoi : record_) {
        for (const Iterazione& r : suoi) {
            trovato = std::max(trovato, valoreDi(r, scelta));
        }
    }
    return trovato;
}

std::string Confronto::dati(const SceltaConfronto& scelta, int segmento) const {
    std::vector<std::string> valori;
    for (int i = 1; i <= ingressi(); ++i) {
        const bool livello = voce(scelta).livello;
        valori.push_back(livello ? formatta(valore(scelta, i, segmento), "#0") : testo(scelta, i, segmento));
    }
    return datiGrafico(valori);
}

Grafico::Contenuto graficoConfronto(const Confronto& confronto, const SceltaConfronto& scelta, int segmento,
                                    float cima) {
    const VariabileConfronto& v = voce(scelta);
    Grafico::Contenuto contenuto;
    contenuto.x = {.titolo = testi::ingresso, .etichette = confronto.nomi(), .posa = Grafico::Posa::nome};
    contenuto.y = {.titolo = std::string{v.assi[posto(scelta.unita)]}, .massimo = static_cast<double>(cima)};
    if (segmento != 0 && !(cima > 0.0F)) {
        contenuto.y.massimo = 1.0;  // an end of 0 is none: the axis would follow the values of each instant
    }
    contenuto.valori = true;
    contenuto.invito = testi::invito;
    if (v.livello) {
        contenuto.nota = notaLOS;
        contenuto.y.tacche = static_cast<int>(livelliServizio.size());
        contenuto.y.etichette = etichetteDaTesto(scalaLOS);
    }
    if (segmento == 0) {
        return contenuto;
    }
    Grafico::Serie serie{.nome = nomeVariabile(scelta) + (v.livello ? testi::segnoNota : ""),
                         .colore = v.colore,
                         .valori = valoriDaTesto(confronto.dati(scelta, segmento))};
    for (int i = 1; i <= confronto.ingressi(); ++i) {
        serie.testi.push_back(confronto.testo(scelta, i, segmento));
        if (v.livello) {
            serie.colori.push_back(distintivoLivello(serie.testi.back()).fondo);
        }
    }
    contenuto.serie.push_back(std::move(serie));
    return contenuto;
}

Tabella tabellaConfronto(const Confronto& confronto, const SceltaConfronto& scelta, bool conFigure) {
    Tabella tabella(confronto.ingressi() + 1, confronto.segmenti() + 1);
    tabella.larghezze.assign(static_cast<std::size_t>(tabella.colonne()), larghezzaIstante);
    tabella.larghezze.front() = larghezzaNome;
    tabella.cella(0, 0).testo = testi::ingresso;
    for (int c = 0; c < tabella.colonne(); ++c) {
        colora(tabella.cella(0, c), colori::intestazione, colori::bianco);
        if (c > 0) {
            tabella.cella(0, c).testo = confronto.istanti()[static_cast<std::size_t>(c) - 1];
        }
    }
    for (int i = 1; i <= confronto.ingressi(); ++i) {
        tabella.cella(i, 0).testo = confronto.nomi()[static_cast<std::size_t>(i) - 1];
        colora(tabella.cella(i, 0), colori::nomeIngresso, colori::bianco);
        for (int s = 1; s <= confronto.segmenti(); ++s) {
            tabella.cella(i, s).sfondo = colori::dati;
            if (conFigure) {
                tabella.cella(i, s).testo = confronto.testo(scelta, i, s);
            }
        }
    }
    return tabella;
}

std::string testoConfronto(const Tabella& tabella, const SceltaConfronto& scelta, DataOra momento,
                           std::string_view nomeFile) {
    std::string testo = testi::didascalia;
    testo.append(fineRiga).append(fineRiga);
    testo.append(testi::variabile).append(nomeVariabile(scelta)).append(fineRiga).append(fineRiga);
    testo.append(testoTabella(tabella, {.allineamento = Allineamento::destra, .rigaVuotaPrima = {}})).append(fineRiga);
    if (voce(scelta).livello) {
        for (const char* riga : {testi::linea, testi::livelli, testi::linea}) {
            testo.append(riga).append(fineRiga);
        }
    }
    return testo.append(righeDiChiusura(momento, nomeFile));
}

RelazioneGrafica relazioneConfronto(const SceltaConfronto& scelta, const std::string& istante,
                                    const Grafico::Contenuto& grafico) {
    const std::string variabile{nomeVariabile(scelta)};
    return {.modello = "\\Modelli\\Grafico.dot",
            .prefisso = "Analizzatore_",
            .titolo = "ANALISI GRANDEZZE PRESTAZIONALI",
            .sottotitolo = "Confronto ingressi",
            .righe = {testi::variabile + variabile, testi::intervallo + istante},
            .figure = {{.grafico = grafico, .didascalia = testi::didascaliaFigura + variabile + ", " + istante}}};
}

}  // namespace kelvo

#include "input/frmTempoModellazione.h"

#include <fmt/format.h>

#include <algorithm>
#include <span>

#include "app/titoli.h"
#include "base/date.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "input/recuperoTraffico.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Tempi di modellazione";
constexpr const char* gruppo = "Tempo di modellazione";
constexpr const char* tempoIniziale = "Tempo iniziale";
constexpr const char* segmentoTempo = "Segmento di tempo";
constexpr const char* tempoFinale = "Tempo finale";
constexpr const char* informazione = "KELVO 2014 - Informazione";
constexpr const char* incompleto = "Completare tutti i campi visualizzati";
constexpr const char* fuoriLimiti = "Sono consentiti valori compresi tra <5> e <30> minuti";
constexpr const char* modificati =
    "Attenzione, i parametri di modellazione sono stati modificati.\nI dati di traffico dovranno essere nuovamente "
    "inseriti";
constexpr const char* motivoSegmento = "Indicare la durata del segmento di tempo.";
constexpr const char* motivoFine = "Scegliere un tempo finale successivo al tempo iniziale.";
}  // namespace testi

constexpr int segmentoMinimo = 5;
constexpr int segmentoMassimo = 30;
constexpr int primaFine = 60;      ///< minutes from the start to the first end of the list
constexpr int durataElenco = 300;  ///< minutes from the first end to the last one
constexpr const char* metodoSalva = "frmTempoModellazione:SaveData";
constexpr const char* metodoElenco = "frmTempoModellazione:FillTempoFinale";
constexpr const char* metodoCopia = "frmTempoModellazione:BackUpDATA";

std::int64_t minutiDelGiorno(DataOra ora) {
    return minutiTra(0.0, ora);
}

DataOra oraDaMinuti(std::int64_t minuti) {
    return oraDelGiorno(0, static_cast<int>(minuti));
}

/// Whole minutes that a text gives; 0 if it is no whole number.
int minutiScritti(const std::string& testo) {
    const double valore = leggiNumero(testo).value_or(0.0);
    const bool intero = valore >= 0.0 && valore <= 1440.0 && valore == arrotondaPari(valore);
    return intero ? static_cast<int>(valore) : 0;
}

std::int32_t interoPari(float valore) {
    constexpr double limite = 2147483647.0;
    const double intero = arrotondaPari(static_cast<double>(valore));
    if (!(intero >= -limite && intero <= limite)) {
        throw Guasto(NumeroGuasto::overflow, "veicoli " + testoNumero(valore));
    }
    return static_cast<std::int32_t>(intero);
}

CurvaBackup copiaCurva(const DatiTraffico& dati) {
    return {.FlussoTempo1 = dati.FlussoTempo1(),
            .FlussoTempo2 = dati.FlussoTempo2(),
            .FlussoTempo3 = dati.FlussoTempo3(),
            .FlussoTotale = dati.FlussoTotale(),
            .FlussoMedio = dati.FlussoMedio(),
            .FlussoOrario = dati.FlussoOrario(),
            .Tempo1 = dati.Tempo1(),
            .Tempo2 = dati.Tempo2(),
            .Tempo3 = dati.Tempo3()};
}

bool vuota(const CurvaBackup& curva) {
    return curva.FlussoTempo1 == 0.0F && curva.FlussoTempo2 == 0.0F && curva.FlussoTempo3 == 0.0F;
}

bool vuoti(std::span<const float> valori) {
    return std::all_of(valori.begin(), valori.end(), [](float valore) { return valore == 0.0F; });
}

bool vuota(const TabellaCategorie& tabella) {
    return std::all_of(tabella.begin(), tabella.end(), [](const PerClasse& riga) { return vuoti(riga); });
}

}  // namespace

frmTempoModellazione::frmTempoModellazione(const Contorno& contorno)
    : FinestraDati(contorno, "frmTempoModellazione", testi::didascalia),
      lblTempoIniziale("lblTempoIniziale", testi::tempoIniziale),
      lblSegmentoTempo("lblSegmentoTempo", testi::segmentoTempo),
      lblTempoFinale("lblTempoFinale", testi::tempoFinale),
      frTempo("frTempo", testi::gruppo, {&txtTempoIniziale, &txtSegmentoTempo, &txtTempoFinale}) {
    ordina(
        {&lblTempoIniziale, &txtTempoIniziale, &lblSegmentoTempo, &txtSegmentoTempo, &lblTempoFinale, &txtTempoFinale});
    txtTempoIniziale.paginaAiuto = "TempoIniziale.htm";
    txtSegmentoTempo.paginaAiuto = "SegmentoTempo.htm";
    txtTempoFinale.paginaAiuto = "TempoFinale.htm";
    txtSegmentoTempo.digitabile = true;
    txtSegmentoTempo.caratteriAmmessi = "0123456789";
    txtSegmentoTempo.voci({"", "5", "10", "15", "20", "30"});
    txtSegmentoTempo.controllo = [this] { return controllaSegmento(); };
    txtTempoFinale.controllo = [this] { return controllaFine(); };
    txtTempoIniziale.dopoUscita = [this] { dopoTempoIniziale(); };
    txtSegmentoTempo.dopoUscita = [this] { dopoSegmento(); };
    txtTempoFinale.dopoUscita = [this] { confronta(); };
}

std::string frmTempoModellazione::limitiSegmento() {
    return fmt::format("{} ÷ {}", segmentoMinimo, segmentoMassimo);
}

void frmTempoModellazione::ReadData() {
    precedenti_ = tempiDelProgetto(rotonda(), 0);
    txtTempoIniziale.testo(testoHHNN(rotonda().TempoIniziale()));
    txtSegmentoTempo.testo(testoNumero(minutoCampo(rotonda().SegmentoTempo())));
    FillTempoFinale();
    const std::string fine = testoHHNN(rotonda().TempoFinale());
    txtTempoFinale.testo(fine);
    DatiAllineati(true);
    const auto& voci = txtTempoFinale.voci();
    txtTempoFinale.scelta(static_cast<int>(std::find(voci.begin(), voci.end(), fine) - voci.begin()));
}

void frmTempoModellazione::FillTempoFinale() {
    gestisci(metodoElenco, [this] {
        std::vector<std::string> fini;
        if (!txtSegmentoTempo.testo().empty()) {
            fini.emplace_back();
            const int segmento = minutiScritti(txtSegmentoTempo.testo());
            const std::int64_t base = minutiDelGiorno(leggiHHNN(txtTempoIniziale.testo()).value_or(0.0)) + primaFine;
            for (int t = 0; segmento > 0 && t <= durataElenco; t += segmento) {
                fini.push_back(testoHHNN(oraDaMinuti(base + t)));
            }
        }
        txtTempoFinale.voci(fini);
        txtTempoFinale.modifica({});
    });
}

EsitoUscita frmTempoModellazione::controllaSegmento() const {
    if (txtSegmentoTempo.testo().empty()) {
        return {.accettato = true, .bandiera = true, .messaggio = {}, .motivo = testi::motivoSegmento};
    }
    const int minuti = minutiScritti(txtSegmentoTempo.testo());
    if (minuti < segmentoMinimo || minuti > segmentoMassimo) {
        return EsitoUscita::rifiuto(MessaggioCampo{testi::fuoriLimiti, testi::informazione, Icona::informazione});
    }
    return EsitoUscita::bene();
}

EsitoUscita frmTempoModellazione::controllaFine() const {
    const auto fine = leggiHHNN(txtTempoFinale.testo());
    const auto inizio = leggiHHNN(txtTempoIniziale.testo());
    if (!fine || !inizio || *fine <= *inizio) {
        return EsitoUscita::rifiuto(std::string{testi::motivoFine});
    }
    return EsitoUscita::bene();
}

void frmTempoModellazione::confronta() {
    const Rotonda& r = rotonda();
    if (txtTempoIniziale.testo() != testoHHNN(r.TempoIniziale()) ||
        minutiScritti(txtSegmentoTempo.testo()) != minutoCampo(r.SegmentoTempo()) ||
        txtTempoFinale.testo() != testoHHNN(r.TempoFinale())) {
        DatiAllineati(false);
    }
}

void frmTempoModellazione::dopoTempoIniziale() {
    if (txtTempoIniziale.testo() != testoHHNN(rotonda().TempoIniziale())) {
        FillTempoFinale();
    }
    confronta();
}

void frmTempoModellazione::dopoSegmento() {
    if (!txtSegmentoTempo.testo().empty()) {
        if (minutiScritti(txtSegmentoTempo.testo()) != minutoCampo(rotonda().SegmentoTempo())) {
            FillTempoFinale();
        }
        txtTempoFinale.modifica({});  // the first, empty row: the end has to be chosen again
    }
    confronta();
}

frmTempoModellazione::Tempi frmTempoModellazione::tempi() const {
    // What was not changed is taken from the project, which may hold more than the field shows.
    const Rotonda& r = app().theRotonda();
    const auto ora = [](const tBox& campo, DataOra delProgetto) {
        return minutiDelGiorno(campo.modificato() ? leggiHHNN(campo.testo()).value_or(0.0) : delProgetto);
    };
    return {.inizio = ora(txtTempoIniziale, r.TempoIniziale()),
            .fine = ora(txtTempoFinale, r.TempoFinale()),
            .segmento = minutiScritti(txtSegmentoTempo.testo())};
}

bool frmTempoModellazione::completo() {
    if (txtTempoFinale.testo().empty() || txtSegmentoTempo.testo().empty()) {
        messaggio(testi::incompleto, titoli::attenzione, Icona::esclamazione);
        stato().convalidaFallita = true;
        return false;
    }
    return true;
}

void frmTempoModellazione::SaveData() {
    gestisci(metodoSalva, [this] {
        if (!completo()) {
            return;
        }
        if (!txtTempoIniziale.modificato() && !txtSegmentoTempo.modificato() && !txtTempoFinale.modificato()) {
            DatiAllineati(true);
            return;
        }
        // A field that the focus did not pass may not suit the others any more.
        if (txtSegmentoTempo.convalida() && txtTempoFinale.convalida()) {
            salva();
        }
    });
}

void frmTempoModellazione::salva() {
    Tempi t = tempi();
    precedenti_ = tempiDelProgetto(rotonda(), 0);
    const std::int64_t totale = t.fine - t.inizio;
    Rotonda& r = rotonda();
    if (txtSegmentoTempo.modificato()) {
        r.SegmentoTempo(oraDaMinuti(t.segmento));
    }
    if (txtTempoFinale.modificato()) {
        r.TempoFinale(oraDaMinuti(t.fine));
    }
    if (txtTempoIniziale.modificato()) {
        r.TempoIniziale(oraDaMinuti(t.inizio));
    }
    if (totale % t.segmento != 0) {
        correggiFine(t);
    }
    // The length before the correction counts: 65 minutes by 10 are 6 segments, though the end moves to 70.
    const double segmenti = dividi(static_cast<double>(totale), static_cast<double>(t.segmento));
    stato().NumSegmenti = aIntero16(arrotondaPari(segmenti));
    aggiornaRami(t);
    txtTempoIniziale.salvato();
    txtSegmentoTempo.salvato();
    txtTempoFinale.salvato();
    DatiAllineati(true);
}

void frmTempoModellazione::correggiFine(Tempi& tempi) {
    tempi.fine += tempi.segmento - (tempi.fine - tempi.inizio) % tempi.segmento;
    const DataOra fine = oraDaMinuti(tempi.fine);
    rotonda().TempoFinale(fine);
    txtTempoFinale.modifica(testoHHNN(fine));
    messaggio(
        fmt::format("Attenzione, il parametro 'Tempo Finale' è stato aggiornato a <{}> per ottenere gli intervalli "
                    "di tempo omogenei",
                    txtTempoFinale.testo()),
        testi::informazione, Icona::informazione);
}

void frmTempoModellazione::aggiornaRami(const Tempi& tempi) {
    Rotonda& r = rotonda();
    const std::int16_t segmenti = stato().NumSegmenti;
    bool uguali = true;
    for (std::int16_t i = 1; i <= r.Rami().Count(); ++i) {
        uguali = uguali && r.Ramo(i).theDatiTraffico().NumSegmentiTempo() == segmenti;
    }
    if (uguali) {
        return;
    }
    messaggio(testi::modificati, titoli::attenzione, Icona::esclamazione);
    BackUpData();
    const DataOra inizio = oraDaMinuti(tempi.inizio);
    const double n = arrotondaPari(static_cast<double>(tempi.fine - tempi.inizio) / tempi.segmento);
    const auto picco = static_cast<std::int64_t>(arrotondaPari(n / 2.0));
    for (std::int16_t i = 1; i <= r.Rami().Count(); ++i) {
        r.Ramo(i).theDatiTraffico().NumSegmentiTempo(segmenti);
        r.Ramo(i).theComposizioneTraffico().NumSegmentiTempo(segmenti);
    }
    r.backupTraffico().BackupComposizioneDisponibile = true;
    for (std::int16_t i = 1; i <= r.Rami().Count(); ++i) {
        DatiTraffico& dati = r.Ramo(i).theDatiTraffico();
        dati.FlussoTempo1(0.0F);
        dati.FlussoTempo2(0.0F);
        dati.FlussoTempo3(0.0F);
        dati.FlussoTotale(0.0F);
        dati.FlussoMedio(0.0F);
        dati.FlussoOrario(0.0F);
        dati.Tempo1(inizio);
        dati.Tempo3(oraDaMinuti(tempi.fine));
        dati.Tempo2(oraDaMinuti(tempi.inizio + picco * tempi.segmento));
    }
}

void frmTempoModellazione::BackUpData() {
    gestisci(metodoCopia, [this] {
        Rotonda& r = rotonda();
        r.backupTraffico().rami.resize(static_cast<std::size_t>(r.Rami().Count()));
        for (std::int16_t i = 1; i <= r.Rami().Count(); ++i) {
            copiaTraffico(i);
            salvaCopiaRamo(i);
        }
    });
}

SerieSegmenti frmTempoModellazione::serie(std::int16_t numero) const {
    return {precedenti_.inizio, precedenti_.minuti, numero};
}

/// A leg without data keeps what an earlier change of the times took from it: a mistyped time, mended by a second
/// change, costs nothing. Each kind is offered anew.
void frmTempoModellazione::copiaTraffico(std::int16_t indice) {
    const DatiTraffico& dati = rotonda().Ramo(indice).theDatiTraffico();
    RamoBackup& copia = rotonda().backupTraffico().rami[static_cast<std::size_t>(indice) - 1];
    copia.origineCurva.offerto = false;
    copia.origineConteggi.offerto = false;
    copia.origineComposizione.offerto = false;
    if (const CurvaBackup curva = copiaCurva(dati); !vuota(curva)) {
        copia.curva = curva;
        copia.origineCurva = {.tempi = serie(dati.NumSegmentiTempo()), .presente = true, .offerto = false};
    }
    if (!vuoti(dati.FlussiSegmento())) {
        copia.conteggi = dati.FlussiSegmento();
        copia.origineConteggi = {.tempi = serie(dati.NumSegmentiTempo()), .presente = true, .offerto = false};
    }
}

void frmTempoModellazione::salvaCopiaRamo(std::int16_t indice) {
    Rotonda& r = rotonda();
    TabellaBackup& copia = r.backupTraffico().BackupComposizione;
    const ComposizioneTraffico& composizione = r.Ramo(indice).theComposizioneTraffico();
    copia.allarga(r.Rami().Count(), composizione.NumSegmentiTempo());
    TabellaCategorie tabella;
    composizione.GetCategorieSegmenti(tabella);
    if (vuota(tabella)) {
        return;
    }
    r.backupTraffico().rami[static_cast<std::size_t>(indice) - 1].origineComposizione = {
        .tempi = serie(composizione.NumSegmentiTempo()), .presente = true, .offerto = false};
    for (std::size_t s = 0; s < tabella.size(); ++s) {
        for (std::int16_t c = 0; c < numeroClassi; ++c) {
            const auto segmento = static_cast<std::int16_t>(s);
            copia.cella(interoPari(composizione.CategoriaSegmento(segmento, c)), indice,
                        static_cast<std::int16_t>(c + 1), static_cast<std::int16_t>(segmento + 1));
        }
    }
}

}  // namespace kelvo

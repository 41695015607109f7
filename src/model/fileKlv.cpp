#include "model/fileKlv.h"

#include <fmt/format.h>

#include <exception>
#include <utility>

#include "base/guasto.h"
#include "model/Rotonda.h"
#include "model/campiKlv.h"

namespace kelvo {

namespace {

bool cifra(char c) {
    return c >= '0' && c <= '9';
}

bool conChiaviIgnote(const Ramo& ramo) {
    return !ramo.chiaviIgnote.empty() || !ramo.theDatiTraffico().chiaviIgnote.empty() ||
           !ramo.theComposizioneTraffico().chiaviIgnote.empty() || !ramo.theAnalisiMarginale().chiaviIgnote.empty();
}

bool conChiaviIgnote(const Rotonda& rotonda) {
    bool trovate = !rotonda.chiaviIgnote.empty();
    for (std::int16_t i = 1; i <= rotonda.Rami().Count(); ++i) {
        trovate = trovate || conChiaviIgnote(rotonda.Ramo(i));
    }
    return trovate;
}

}  // namespace

bool klv::chiaveDelRamo(std::string_view chiave, std::int16_t posizione) {
    if (chiave.empty()) {
        return false;
    }
    const char segno = cifra(chiave.back()) ? chiave.back() : chiave.front();
    return segno == static_cast<char>('0' + posizione);
}

void Rotonda::LoadTesto(std::string_view testo, std::string& messaggio, bool& esito) {
    esito = false;
    try {
        Rotonda nuova(sistema_, oggi_);
        klv::leggi(testo, nuova);
        dati_ = std::move(nuova.dati_);
        rami_ = std::move(nuova.rami_);
        chiaviIgnote = std::move(nuova.chiaviIgnote);
        for (auto& ramo : rami_.rami_) {
            ramo->segui(revisione_);
        }
        timbro_ = {};
        timbroRecord_ = {};
        backupTraffico_ = {};
        segnaDato();
        messaggio.clear();
        esito = true;
    } catch (const Guasto& guasto) {
        messaggio = guasto.descrizione();
    } catch (const std::exception&) {
        messaggio = "memoria insufficiente";
    }
}

void Rotonda::Load(const std::string& percorso, std::string& messaggio, bool& esito) {
    std::string testo;
    const std::string errore = leggiFile(percorso, klv::massimoByte, testo);
    if (errore.empty()) {
        LoadTesto(testo, messaggio, esito);
    } else {
        messaggio = errore;
        esito = false;
    }
}

std::string Rotonda::TestoFile() const {
    std::string testo = klv::scrivi(*this);
    if (testo.size() > klv::massimoByte) {
        throw Guasto::conParole(NumeroGuasto::chiamataNonValida,
                                fmt::format("il progetto supera {} MiB", klv::massimoByte / (1024 * 1024)));
    }
    if (conChiaviIgnote(*this)) {
        // What another program added counts against the limits of the file: never write what cannot be read back.
        Rotonda prova(sistema_, oggi_);
        klv::leggi(testo, prova);
    }
    return testo;
}

void Rotonda::Save(const std::string& percorso, std::string& messaggio, bool& esito) const {
    std::string errore;
    try {
        errore = scriviFileSicuro(sistema_, percorso, TestoFile());
    } catch (const Guasto& guasto) {
        errore = guasto.descrizione();
    } catch (const std::exception&) {
        errore = "memoria insufficiente";
    }
    esito = errore.empty();
    messaggio = esito ? std::string{} : fmt::format("Impossibile salvare il progetto: {} ({})", errore, percorso);
}

}  // namespace kelvo

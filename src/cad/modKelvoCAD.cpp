#include "cad/modKelvoCAD.h"

#include <fmt/format.h>

#include <algorithm>

#include "app/percorsi.h"
#include "app/titoli.h"
#include "base/file.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "base/testo.h"

namespace kelvo {

namespace {

constexpr const char* chiaveAutoCAD = "Software\\Autodesk\\AutoCAD";

constexpr const char* domandaSalvataggio =
    "Attenzione! Per continuare è necessario salvare il progetto. Salvare adesso?";
constexpr const char* senzaEseguibile =
    "Attenzione!\nL'eseguibile di KelvoCAD non è stato trovato.\nNon sarà possibile esportare la rotatoria in ambiente "
    "CAD.";

const VersioneAutoCAD* versione(std::string_view chiave) {
    const std::string cercata = maiuscoleAscii(chiave);
    const auto* trovata = std::find_if(versioniAutoCAD.begin(), versioniAutoCAD.end(),
                                       [&](const VersioneAutoCAD& v) { return maiuscoleAscii(v.chiave) == cercata; });
    return trovata == versioniAutoCAD.end() ? nullptr : trovata;
}

/// The question about different diameters, one line a leg.
std::string domandaDiametri(const std::vector<float>& diametri) {
    std::string testo = "Attenzione! Rilevati differenti valori del diametro relativo agli ingressi:\n";
    for (std::size_t i = 0; i < diametri.size(); ++i) {
        testo += fmt::format("      Ramo {} = {}\n", i + 1, testoNumero(diametri[i]));
    }
    return testo + fmt::format(
                       "KelvoCAD utilizzerà il valore D={}m per il diametro della rotatoria.\nProcedere con questo "
                       "valore?",
                       testoNumero(diametri.front()));
}

}  // namespace

std::string_view progIDAutoCAD(std::string_view nome) {
    for (const VersioneAutoCAD& v : versioniAutoCAD) {
        if (v.nome == nome) {
            return v.progID;
        }
    }
    return {};
}

void modKelvoCAD::LinkKELVOCAD(bool& esito) {
    esito = false;
    if (app_.messaggi.mostra(domandaSalvataggio, titoli::attenzione, Icona::domanda, Pulsanti::siNo) != Risposta::si) {
        return;
    }
    bool continua = false;
    ControllaDATIexportKCAD(continua);
    if (!continua) {
        return;
    }
    servizi_.salvataggio.SaveRotonda(continua);
    if (!continua) {
        return;
    }
    try {
        avviaKelvoCAD();
        esito = true;
    } catch (const Guasto& guasto) {
        app_.comune.erroreLog(guasto.codice(), "LinkKELVOCAD:", guasto.descrizione(), false);
        app_.messaggi.mostra(senzaEseguibile, titoli::kelvo, Icona::esclamazione, Pulsanti::ok);
    }
}

void modKelvoCAD::avviaKelvoCAD() {
    const std::string programma = percorsoKelvoCAD(app_.theAmbiente);
    const std::string progetto = FilePathKelvo();
    if (!servizi_.documenti.avvia(programma, progetto)) {
        const bool presente = app_.file.dimensione(programma) >= 0;
        throw Guasto(presente ? NumeroGuasto::chiamataNonValida : NumeroGuasto::fileNonTrovato, programma);
    }
}

std::string modKelvoCAD::FilePathKelvo() const {
    return servizi_.impostazioni.leggi("KelvoCAD 2014", "StartUp", "FilePathKelvo");
}

void modKelvoCAD::ControllaDATIexportKCAD(bool& esito) {
    const Rotonda& rotonda = app_.theRotonda();
    std::vector<float> diametri;
    for (std::int16_t ramo = 1; ramo <= rotonda.NumeroRami(); ++ramo) {
        diametri.push_back(rotonda.Ramo(ramo).DiametroInscritto());
    }
    esito = std::all_of(diametri.begin(), diametri.end(), [&](float d) { return d == diametri.front(); }) ||
            app_.messaggi.mostra(domandaDiametri(diametri), titoli::attenzione, Icona::domanda, Pulsanti::siNo) ==
                Risposta::si;
}

/// Reads the registry, if there is one, in a handler of its own.
template <class Lettura>
void modKelvoCAD::registro(const char* metodo, Lettura lettura) {
    if (servizi_.registro == nullptr) {
        return;
    }
    try {
        lettura(*servizi_.registro);
    } catch (const Guasto& guasto) {
        app_.comune.erroreLog(guasto.codice(), metodo, guasto.descrizione(), true);
    }
}

std::string modKelvoCAD::valoreRegistro(const char* metodo, const std::string& chiave, const char* nome) {
    std::string valore;
    registro(metodo, [&](const RegistroMacchina& r) { valore = r.valore(chiave, nome); });
    return valore;
}

std::string modKelvoCAD::ACAD_Path(const std::string& chiave) {
    return valoreRegistro("  ACAD_Path:", chiave, "Location");
}

std::string modKelvoCAD::ACAD_Lingua(const std::string& chiave) {
    return valoreRegistro("  ACAD_Lingua:", chiave, "Language");
}

std::vector<AUTOCADInstallato> modKelvoCAD::LeggeAUTOCADinstallati() {
    constexpr const char* metodo = "  LeggeAUTOCADinstallati:";
    std::vector<std::string> chiavi;
    registro(metodo, [&](const RegistroMacchina& r) { chiavi = r.sottochiavi(chiaveAutoCAD); });
    std::vector<AUTOCADInstallato> trovati;
    for (const std::string& chiave : chiavi) {
        AUTOCADInstallato voce;
        voce.percorsoRegistro = fmt::format("{}\\{}", chiaveAutoCAD, chiave);
        std::vector<std::string> prodotti;
        registro(metodo, [&](const RegistroMacchina& r) { prodotti = r.sottochiavi(voce.percorsoRegistro); });
        std::string lingua;
        if (!prodotti.empty()) {
            voce.percorsoRegistro += "\\" + prodotti.front();
            voce.cartella = ACAD_Path(voce.percorsoRegistro);
            lingua = voce.cartella.empty() ? std::string{} : ACAD_Lingua(voce.percorsoRegistro);
        }
        const VersioneAutoCAD* nota = versione(chiave);
        if (nota != nullptr && trovati.size() < massimoInstallati) {
            voce.testo = std::string{nota->testo} + lingua;
            voce.nome = nota->nome;
            trovati.push_back(std::move(voce));
        }
    }
    return trovati;
}

}  // namespace kelvo

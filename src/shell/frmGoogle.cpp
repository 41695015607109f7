#include "shell/frmGoogle.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "app/titoli.h"
#include "base/file.h"
#include "base/testo.h"
#include "shell/servizi/pagineAiuto.h"

namespace kelvo {

namespace {

constexpr const char* paginaMappa = "\\Support\\Vaq_google.htm";
constexpr const char* nomePagina = "Vaq_google.htm";
/// The link that leads to the fields of the place.
constexpr const char* versoLuogo = "kelvo:luogo";
constexpr const char* chiaveAnagrafica = "keyAnagraficaRotonda";
constexpr const char* campoLuogo = "txtLocalita";

std::vector<BarraStrumenti::Tasto> tasti() {
    return {{"keyXAnagrafica", "Anagrafica", "Va ai campi del luogo, nell'anagrafica dell'intersezione", "Progetto"},
            {"keyXCopia", "Copia luogo", "Copia il luogo negli appunti", "Archivio"},
            {"Refresh", "Refresh", "Rilegge i dati del progetto", "Refresh"}};
}

/// The text on one line, blanks at its ends taken off.
std::string riga(std::string testo) {
    std::replace_if(
        testo.begin(), testo.end(), [](char c) { return c == '\n' || c == '\r' || c == '\t'; }, ' ');
    return std::string{rifila(testo)};
}

/// Takes a part of a page away, from "<!--nome-->" to "<!--/nome-->"; a page without such a part stays as it is.
void togli(std::string& pagina, const std::string& nome) {
    const std::string fine = fmt::format("<!--/{}-->", nome);
    const auto da = pagina.find(fmt::format("<!--{}-->", nome));
    const auto a = pagina.find(fine);
    if (da != std::string::npos && a != std::string::npos && da < a) {
        pagina.erase(da, a + fine.size() - da);
    }
}

/// Puts values in the places of "{nome}", in one pass: what a value holds is never searched again.
std::string riempi(std::string_view pagina, const std::vector<std::pair<std::string, std::string>>& valori) {
    std::string piena;
    while (!pagina.empty()) {
        const auto valore = std::find_if(valori.begin(), valori.end(),
                                         [&](const auto& v) { return pagina.substr(0, v.first.size()) == v.first; });
        if (valore == valori.end()) {
            piena += pagina.front();
            pagina.remove_prefix(1);
        } else {
            piena += valore->second;
            pagina.remove_prefix(valore->first.size());
        }
    }
    return piena;
}

std::string oTrattino(const std::string& testo) {
    return testo.empty() ? "–" : testoHtml(testo);
}

}  // namespace

frmGoogle::frmGoogle(const Contorno& contorno, ApriDocumenti& documenti, CampiMostrati* campi)
    : Finestra(contorno, "frmGoogle", "Localizzazione geografica"),
      ctlToolbar("ctlToolbar", tasti()),
      documenti_(documenti),
      campi_(campi) {
    ordina({&ctlBrowser});
    ctlToolbar.allaPressione = [this](const std::string& chiave) { premuto(chiave); };
    ctlBrowser.alCollegamento = [this](const std::string& collegamento) { segui(collegamento); };
}

std::string frmGoogle::luogo() const {
    const Rotonda& progetto = app().theRotonda();
    std::string tutto;
    for (const std::string& parte : {progetto.Localita(), progetto.Comune(), progetto.Provincia()}) {
        if (const std::string pulita = riga(parte); !pulita.empty()) {
            tutto += (tutto.empty() ? "" : ", ") + pulita;
        }
    }
    return tutto;
}

void frmGoogle::aggiorna() {
    gestisci("frmGoogle:aggiorna()", [&] {
        ctlBrowser.html(pagina());
        const char* chiuso = app().appunti == nullptr ? "Non ci sono appunti in cui copiare"
                             : luogo().empty()        ? "Il luogo non è indicato"
                                                      : "";
        ctlToolbar.abilita("keyXCopia", *chiuso == '\0');
        ctlToolbar.annota("keyXCopia", chiuso);
    });
}

std::string frmGoogle::pagina() const {
    std::string testo;
    const std::string motivo = leggiFile(app().theAmbiente.PercorsoProgramma(paginaMappa), massimoPagina, testo);
    if (!motivo.empty()) {
        return paginaMancante(nomePagina, motivo);
    }
    const Rotonda& progetto = app().theRotonda();
    const std::string dove = luogo();
    togli(testo, dove.empty() ? "LUOGO" : "SENZA LUOGO");
    return riempi(testo, {{"{titolo}", oTrattino(riga(progetto.Titolo()))},
                          {"{localita}", oTrattino(riga(progetto.Localita()))},
                          {"{comune}", oTrattino(riga(progetto.Comune()))},
                          {"{provincia}", oTrattino(riga(progetto.Provincia()))},
                          {"{luogo}", testoHtml(dove)},
                          {"{ricerca}", codificaPercento(utf8Valido(dove))}});
}

void frmGoogle::premuto(const std::string& chiave) {
    if (chiave == "keyXAnagrafica") {
        vaiAlLuogo();
    } else if (chiave == "keyXCopia") {
        app().appunti->scrivi(luogo());
        cornice().avviso("Luogo copiato: " + luogo());
    } else {
        aggiorna();
    }
}

void frmGoogle::vaiAlLuogo() {
    CampiMostrati* campi = campi_;  // the window may go while another one comes
    if (navigazione().mostra(chiaveAnagrafica) && campi != nullptr) {
        campi->fuocoSu(campoLuogo, 0);
    }
}

void frmGoogle::segui(const std::string& collegamento) {
    if (collegamento == versoLuogo) {
        vaiAlLuogo();
    } else if (collegamento.rfind("https://", 0) != 0 || !documenti_.apri(collegamento)) {
        messaggio("Impossibile aprire il collegamento con il programma di navigazione del sistema:\n" + collegamento,
                  titoli::attenzione, Icona::esclamazione);
    }
}

}  // namespace kelvo

#include "shell/frmINFO.h"

#include <fmt/format.h>

#include <array>
#include <utility>
#include <vector>

#include "app/percorsi.h"
#include "base/testo.h"
#include "base/versione.h"

namespace kelvo {

namespace {

constexpr const char* produttore = "Vaq";

constexpr std::array librerie{
    LibreriaUsata{"Qt 6", "finestre, disegno, stampa", "LGPL 3"},
    LibreriaUsata{"libsigc++ 3", "segnali fra i controlli", "LGPL 2.1"},
    LibreriaUsata{"libcsv", "lettura dei file CSV", "LGPL 2.1"},
    LibreriaUsata{"{fmt}", "composizione dei testi", "MIT"},
    LibreriaUsata{"nlohmann/json", "file di progetto", "MIT"},
    LibreriaUsata{"pugixml", "documenti delle relazioni", "MIT"},
    LibreriaUsata{"libzip", "documenti delle relazioni", "BSD a 3 clausole"},
    LibreriaUsata{"libxlsxwriter", "fogli di calcolo", "BSD a 2 clausole"},
    LibreriaUsata{"UTF8-CPP", "caratteri UTF-8", "Boost 1.0"},
    LibreriaUsata{"CLI11", "riga di comando", "BSD a 3 clausole"},
    LibreriaUsata{"Open Sans", "carattere", "Apache 2.0"},
};

using Cartelle = std::vector<std::pair<std::string, std::string>>;

Cartelle cartelle(const Applicazione& app) {
    const clsAmbiente& ambiente = app.theAmbiente;
    const auto sotto = [&](const char* nome) { return ambiente.PercorsoProgramma(nome); };
    return {{"Programma", ambiente.CartellaProgramma()},
            {"Progetti", cartellaProgetti(ambiente)},
            {"Relazioni", sotto("\\Relazioni")},
            {"Modelli", sotto("\\Modelli")},
            {"Fogli di calcolo", sotto("\\XLS")},
            {"File temporanei", ambiente.CartellaLavoro()},
            {"Configurazione", ambiente.PercorsoIni()},
            {"Registro degli errori", sotto(app.configurazione.PathErrore.c_str())}};
}

}  // namespace

std::span<const LibreriaUsata> librerieUsate() {
    return librerie;
}

frmINFO::frmINFO(const Contorno& contorno)
    : Finestra(contorno, "frmINFO", "Informazioni sul programma"),
      lblProgramma("lblProgramma", "KELVO 2014"),
      lblVersione("lblVersione", fmt::format("Versione {}", versione())),
      lblProduttore("lblProduttore", produttore) {
    ordina({&lblProgramma, &lblVersione, &lblProduttore, &ctlDettagli, &cmdCopia, &cmdOk});
    ctlDettagli.html(dettagli());
    cmdCopia.abilitato(app().appunti != nullptr);
    cmdCopia.allaPressione = [this] {
        app().appunti->scrivi(perAssistenza());
        cornice().avviso("Informazioni copiate negli appunti");
    };
    cmdOk.allaPressione = [this] {
        if (allaChiusura) {
            allaChiusura();
        }
    };
}

std::string frmINFO::perAssistenza() const {
    std::string testo = fmt::format("Kelvo {} ({})\n", versione(), produttore);
    for (const auto& [nome, percorso] : cartelle(app())) {
        testo += fmt::format("{}: {}\n", nome, percorso);
    }
    return testo;
}

std::string frmINFO::dettagli() const {
    std::string righe;
    for (const auto& [nome, percorso] : cartelle(app())) {
        righe += fmt::format("<tr><td class=\"nota\">{}</td><td>{}</td></tr>\n", nome, testoHtml(percorso));
    }
    std::string usate;
    for (const LibreriaUsata& l : librerie) {
        usate += fmt::format("<tr><td>{}</td><td>{}</td><td>{}</td></tr>\n", l.nome, l.scopo, l.licenza);
    }
    return fmt::format(
        "<html><head><title>Informazioni sul programma</title></head><body>"
        "<p class=\"capo\">Cartelle</p><table cellspacing=\"0\" cellpadding=\"3\" width=\"100%\">{}</table>"
        "<p class=\"capo\">Librerie e licenze</p><table class=\"dati\" cellspacing=\"1\" cellpadding=\"3\" "
        "width=\"100%\"><tr><th align=\"left\">Nome</th><th align=\"left\">Uso</th><th align=\"left\">Licenza</th></tr>"
        "{}</table></body></html>",
        righe, usate);
}

}  // namespace kelvo

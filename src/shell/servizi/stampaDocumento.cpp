#include "shell/servizi/stampaDocumento.h"

#include <fmt/format.h>

#include "app/percorsi.h"
#include "app/titoli.h"
#include "base/date.h"
#include "base/file.h"
#include "base/versione.h"
#include "shell/servizi/esporta.h"

namespace kelvo {

namespace {

void segnala(const Contorno& contorno, const std::string& testo) {
    contorno.app.messaggi.mostra(testo, titoli::attenzione, Icona::esclamazione, Pulsanti::ok);
}

}  // namespace

DocumentoPagine documentoDiProgetto(const Applicazione& app, std::string_view titolo) {
    return {.titolo = std::string{titolo},
            .progetto = app.theRotonda().NomeFile(),
            .progettista = app.theRotonda().NomeProfessionista(),
            .chiusura = fmt::format("Kelvo {} - {}", versione(), testoDataOra(app.orologio.adesso()))};
}

void salvaPDF(const Contorno& contorno, StampaPagine& stampa, const DocumentoPagine& documento) {
    if (contorno.servizi.dialogo == nullptr) {
        return;
    }
    const auto percorso =
        contorno.servizi.dialogo->salva({.estensione = "pdf",
                                         .filtro = "Documento PDF (*.pdf)|*.pdf",
                                         .cartella = cartellaProgetti(contorno.app.theAmbiente),
                                         .nome = nomeFileDati(documento.titolo, documento.progetto) + ".pdf"});
    if (!percorso) {
        return;
    }
    const EsitoDisegno esito = stampa.pdf(documento);
    const std::string errore =
        esito.errore.empty() ? scriviFileSicuro(contorno.app.file, *percorso, esito.dati) : esito.errore;
    if (!errore.empty()) {
        segnala(contorno, fmt::format("Impossibile scrivere il file: {} ({})", errore, *percorso));
        return;
    }
    contorno.cornice.avviso("Scritto il file " + *percorso);
}

void stampaDocumento(const Contorno& contorno, StampaPagine& stampa, const DocumentoPagine& documento) {
    const EsitoStampa esito = stampa.stampa(documento);
    if (!esito.errore.empty()) {
        segnala(contorno, "Impossibile stampare: " + esito.errore);
    } else if (!esito.annullata) {
        contorno.cornice.avviso("Documento inviato alla stampante");
    }
}

}  // namespace kelvo

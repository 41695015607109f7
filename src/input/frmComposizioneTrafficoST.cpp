#include "input/frmComposizioneTrafficoST.h"

#include <fmt/format.h>

#include <algorithm>
#include <set>
#include <utility>

#include "app/titoli.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "input/categorieTraffico.h"
#include "input/flussiIngresso.h"
#include "input/frmImportaCSV.h"
#include "input/recuperoTraffico.h"
#include "input/tabellaComposizione.h"
#include "shell/servizi/incolla.h"

namespace kelvo {

namespace {

namespace col = colonneComposizione;

namespace testi {
constexpr const char* didascalia = "Composizione del traffico per segmenti";
constexpr const char* blocca = "Blocca colonna";
constexpr const char* titolo = "KELVO 2014";
constexpr const char* troppoGrande = "Attenzione! Numero inserito troppo grande. Controllare valore.";
constexpr const char* riporto = "Riporto i valori della prima riga nelle righe sottostanti?";
constexpr const char* senzaSegmenti = "Nessun segmento di tempo: impostare prima i tempi di modellazione";
constexpr const char* senzaFlusso = "Flusso in ingresso nullo: inserire prima i dati di traffico dell'ingresso";
constexpr const char* senzaDomanda =
    "Flusso in ingresso nullo: il tipo di analisi scelto nelle Opzioni non ha dati di traffico";
constexpr const char* eccedenza =
    "Segmento di tempo '{}': numero veicoli inseriti > numero di veicoli in ingresso [{} veic].";
}  // namespace testi

constexpr const char* cifre = "0123456789";
constexpr double massimo = 999999999.0;
constexpr const char* paginaBlocco = "BloccoCategoria.htm";
constexpr const char* paginaImporta = "ImportaCSV.htm";
constexpr const char* paginaTotale = "TotaleSegmento.htm";
constexpr const char* paginaFlusso = "FlussoIngresso.htm";

template <std::size_t... I>
std::array<Casella, numeroClassi> caselle(std::index_sequence<I...> /*indici*/) {
    return {Casella{"chkLock" + std::to_string(I + 1)}...};
}

bool categoria(int colonna) {
    return colonna >= col::prima && colonna <= col::ultima;
}

}  // namespace

frmComposizioneTrafficoST::frmComposizioneTrafficoST(const Contorno& contorno, DialogoAnteprima* dialogo)
    : FinestraRamo(contorno, "frmComposizioneTrafficoST", testi::didascalia),
      lblBlocca("lblBlocca", testi::blocca),
      chkLock(caselle(std::make_index_sequence<numeroClassi>())),
      cmdImportaCSV("cmdImportaCSV", bottoneImportaCSV) {
    cmdImportaCSV.visibile(dialogo != nullptr);
    cmdImportaCSV.allaPressione = [this, dialogo] {
        gestisci("frmComposizioneTrafficoST:cmdImportaCSV", [&] { importa(*dialogo); });
    };
    std::vector<Controllo*> controlli{&ctlGrid, &lblBlocca};
    for (std::size_t i = 0; i < chkLock.size(); ++i) {
        controlli.push_back(&chkLock[i]);
        chkLock[i].alClic = [this, i] { gestisci("frmComposizioneTrafficoST:chkLock", [&] { spunta(i); }); };
    }
    controlli.insert(controlli.end(), {&lblSegmento, &lblStato, &lblErroreStato, &cmdImportaCSV});
    ordina(controlli);
    preparaGriglia();
    fuocoMutato().connect([this] { mostraAiuto(); });
}

void frmComposizioneTrafficoST::preparaGriglia() {
    ctlGrid.versoInvio = Griglia::Verso::destra;
    ctlGrid.modificabile = [this](Posto p) { return categoria(p.colonna) && bloccata() != p.colonna; };
    ctlGrid.ornamento = [this](Posto p) { return ornamento(p); };
    ctlGrid.allaConferma = [this](Posto p, std::string& testo) { return confermaCella(p, testo); };
    ctlGrid.allIncolla = [this](std::vector<TestoCella>& celle) { return esaminaBlocco(celle); };
    ctlGrid.dopoModifica = [this](const std::vector<Posto>& posti) { modificate(posti); };
    ctlGrid.alMovimento = [this](Posto /*posto*/) {
        mostraSegmento();
        mostraAiuto();
    };
    ctlGrid.colonna(0, {.allineamento = AllineamentoCella::centro});
    for (int c = col::prima; c <= col::ultima; ++c) {
        ctlGrid.colonna(c, {.regole = {.caratteri = cifre}});
    }
}

void frmComposizioneTrafficoST::attivata() {
    for (Casella& casella : chkLock) {
        casella.spuntata(false);
    }
    FinestraRamo::attivata();
    ReadBackUpData();
}

void frmComposizioneTrafficoST::ReadBackUpData() {
    const auto tabella = composizioneRecuperabile(app().theRotonda(), indiceRamo());
    if (!tabella || !chiediRecupero(app(), indiceRamo(), DatoTraffico::composizione)) {
        return;
    }
    std::vector<TestoCella> celle;
    for (int r = 1; r < ctlGrid.tabella().righe(); ++r) {
        if (const auto& riga = (*tabella)[static_cast<std::size_t>(r) - 1]) {
            for (int c = col::prima; c <= col::ultima; ++c) {
                celle.push_back({{r, c}, testoVeicoli((*riga)[static_cast<std::size_t>(c - col::prima)])});
            }
        }
    }
    copia_ = true;
    ctlGrid.inserisci(celle);
    copia_ = false;
}

void frmComposizioneTrafficoST::importa(DialogoAnteprima& dialogo) {
    BersaglioCSV bersaglio{.tipo = "Composizione",
                           .didascalia = "Importa la composizione del traffico da CSV",
                           .griglia = ctlGrid,
                           .colonne = {}};
    for (int c = col::prima; c <= col::ultima; ++c) {
        const CategoriaTraffico& categoria = categorieTraffico[static_cast<std::size_t>(c - col::prima)];
        bersaglio.colonne.push_back({std::string{categoria.intestazione}, c, {std::string{categoria.nome}}});
    }
    importaCSV(contorno(), dialogo, bersaglio);
}

std::vector<double> frmComposizioneTrafficoST::flussi() {
    std::vector<double> veicoli(static_cast<std::size_t>(ramo().theComposizioneTraffico().NumSegmentiTempo()), 0.0);
    // A demand that cannot be built takes no row away from the table.
    gestisci("frmComposizioneTrafficoST:ReadData", [&] { veicoli = flussiIngresso(rotonda(), ramo()); });
    return veicoli;
}

void frmComposizioneTrafficoST::ReadData() {
    gestisci("frmComposizioneTrafficoST:ReadData", [this] {
        Tabella tabella = tabellaComposizione(rotonda(), ramo(), flussi());
        ctlGrid.tabella(std::move(tabella));
        for (Casella& casella : chkLock) {
            casella.abilitato(ctlGrid.tabella().righe() > 1);
        }
        cmdImportaCSV.abilitato(ctlGrid.tabella().righe() > 1);
        coloraBloccata();
        mostraSegmento();
        mostraStato();
        DatiAllineati(true);
    });
}

void frmComposizioneTrafficoST::SaveData() {
    gestisci("frmComposizioneTrafficoST:SaveData", [this] {
        if (!ctlGrid.lascia()) {
            stato().convalidaFallita = true;
            return;
        }
        ComposizioneTraffico& composizione = ramo().theComposizioneTraffico();
        for (int r = 1; r < ctlGrid.tabella().righe(); ++r) {
            for (int c = col::prima; c <= col::ultima; ++c) {
                if (ctlGrid.modificata({r, c})) {
                    composizione.CategoriaSegmento(aSingolo(veicoli(ctlGrid.tabella(), r, c)),
                                                   static_cast<std::int16_t>(r - 1),
                                                   static_cast<std::int16_t>(c - col::prima));
                }
            }
        }
        ctlGrid.salvata();
        DatiAllineati(true);
    });
}

std::optional<int> frmComposizioneTrafficoST::bloccata() const {
    const auto trovata =
        std::find_if(chkLock.begin(), chkLock.end(), [](const Casella& casella) { return casella.spuntata(); });
    if (trovata == chkLock.end()) {
        return std::nullopt;
    }
    return col::prima + static_cast<int>(trovata - chkLock.begin());
}

void frmComposizioneTrafficoST::spunta(std::size_t quale) {
    const bool spuntata = chkLock[quale].spuntata();
    for (std::size_t i = 0; spuntata && i < chkLock.size(); ++i) {
        chkLock[i].spuntata(i == quale);
    }
    coloraBloccata();
    if (spuntata &&
        app().messaggi.mostra(testi::riporto, testi::titolo, Icona::domanda, Pulsanti::siNo) == Risposta::si) {
        copiaPrimaRiga();
    }
}

void frmComposizioneTrafficoST::copiaPrimaRiga() {
    std::vector<TestoCella> celle;
    for (int r = 2; r < ctlGrid.tabella().righe(); ++r) {
        for (int c = col::prima; c <= col::ultima; ++c) {
            celle.push_back({{r, c}, ctlGrid.testo(1, c)});
        }
    }
    copia_ = true;
    ctlGrid.inserisci(celle);
    copia_ = false;
}

EsitoUscita frmComposizioneTrafficoST::confermaCella(Posto posto, std::string& testo) {
    if (testo.empty()) {
        testo = "0";
    }
    const auto numero = leggiNumero(testo);
    if (!numero || *numero > massimo) {
        EsitoUscita esito =
            EsitoUscita::rifiuto(MessaggioCampo{testi::troppoGrande, testi::titolo, Icona::esclamazione});
        esito.rimesso = ctlGrid.testo(posto.riga, posto.colonna);
        return esito;
    }
    testo = testoNumero(*numero);
    EsitoUscita esito = EsitoUscita::bene();
    esito.messaggio = eccedenza({{posto, testo}});
    return esito;
}

EsitoUscita frmComposizioneTrafficoST::esaminaBlocco(std::vector<TestoCella>& celle) const {
    for (TestoCella& cella : celle) {
        const std::optional<double> numero = numeroIncollato(cella.testo);
        if (!numero) {
            return rifiutoBlocco(ctlGrid, cella, "non è un numero");
        }
        if (*numero < 0.0 || *numero > massimo || *numero != arrotondaPari(*numero)) {
            return rifiutoBlocco(ctlGrid, cella, "non è un numero intero tra 0 e 999999999");
        }
        cella.testo = testoNumero(*numero);
    }
    EsitoUscita esito = EsitoUscita::bene();
    esito.messaggio = eccedenza(celle);
    return esito;
}

std::optional<MessaggioCampo> frmComposizioneTrafficoST::eccedenza(const std::vector<TestoCella>& nuove) const {
    if (bloccata()) {
        return std::nullopt;
    }
    Tabella prova = ctlGrid.tabella();
    std::set<int> righe;
    for (const TestoCella& cella : nuove) {
        prova.cella(cella.posto.riga, cella.posto.colonna).testo = cella.testo;
        righe.insert(cella.posto.riga);
    }
    // Of a block the first segment is told; the others bear their mark.
    for (const int riga : righe) {
        if (sommaCategorie(prova, riga) > veicoli(prova, riga, col::flusso)) {
            return MessaggioCampo{fmt::format(testi::eccedenza, prova.testo(riga, 0), prova.testo(riga, col::flusso)),
                                  titoli::attenzione, Icona::esclamazione};
        }
    }
    return std::nullopt;
}

void frmComposizioneTrafficoST::modificate(const std::vector<Posto>& posti) {
    gestisci("frmComposizioneTrafficoST:ctlGrid", [&] {
        std::set<int> righe;
        for (const Posto& posto : posti) {
            righe.insert(posto.riga);
        }
        for (int r = 1; ctlGrid.inRevisione() && r < ctlGrid.tabella().righe(); ++r) {
            righe.insert(r);  // what comes back may stand in closed columns too
        }
        ctlGrid.modifica([&](Tabella& tabella) {
            for (const int riga : righe) {
                if (!copia_ && !ctlGrid.inRevisione()) {
                    applicaBlocco(tabella, riga);
                }
                mostraTotaleSegmento(tabella, riga);
            }
        });
        DatiAllineati(!ctlGrid.modificata());
        mostraSegmento();
        mostraStato();
    });
}

void frmComposizioneTrafficoST::applicaBlocco(Tabella& tabella, int riga) const {
    if (const auto colonna = bloccata()) {
        const double altre = sommaCategorie(tabella, riga) - veicoli(tabella, riga, *colonna);
        tabella.cella(riga, *colonna).testo = testoNumero(veicoli(tabella, riga, col::flusso) - altre);
    }
}

void frmComposizioneTrafficoST::coloraBloccata() {
    ctlGrid.modifica([this](Tabella& tabella) {
        const auto colonna = bloccata();
        for (int r = 1; r < tabella.righe(); ++r) {
            for (int c = col::prima; c <= col::ultima; ++c) {
                tabella.cella(r, c).sfondo = c == colonna ? colori::dati : colori::bianco;
            }
        }
    });
}

OrnamentoCella frmComposizioneTrafficoST::ornamento(Posto posto) const {
    OrnamentoCella ornato;
    const Tabella& tabella = ctlGrid.tabella();
    if (posto.riga == 0 || posto.colonna == 0) {
        return ornato;
    }
    if (categoria(posto.colonna) && veicoli(tabella, posto.riga, posto.colonna) < 0.0) {
        ornato.segno = OrnamentoCella::Segno::attenzione;
    }
    if (posto.colonna == col::totale) {
        const EsitoSegmento esito = esitoSegmento(tabella, posto.riga);
        if (segnalato(esito)) {
            ornato.segno = OrnamentoCella::Segno::attenzione;
        } else if (esito == EsitoSegmento::uguale) {
            ornato.barra = tinta::verde;
        }
    }
    return ornato;
}

void frmComposizioneTrafficoST::mostraSegmento() {
    const int riga = ctlGrid.corrente().riga;
    const bool suUnSegmento = riga >= 1 && riga < ctlGrid.tabella().righe();
    lblSegmento.testo(suUnSegmento ? paroleSegmento(ctlGrid.tabella(), riga) : std::string{});
}

void frmComposizioneTrafficoST::mostraStato() {
    const EsitoTabella esito = esitoTabella(ctlGrid.tabella());
    std::string parole = paroleTabella(esito);
    bool errore = esito.piu > 0;
    if (esito.segmenti == 0 || !esito.conFlusso) {
        const bool conDomanda = app().theRotonda().TipoAnalisi() != 0;
        parole = esito.segmenti == 0 ? testi::senzaSegmenti : conDomanda ? testi::senzaFlusso : testi::senzaDomanda;
        errore = true;
    }
    lblStato.testo(errore ? std::string{} : parole);
    lblErroreStato.testo(errore ? parole : std::string{});
    lblStato.visibile(!errore);
    lblErroreStato.visibile(errore);
}

void frmComposizioneTrafficoST::mostraAiuto() {
    if (fuoco() == &ctlGrid) {
        // The grid has the page of the column that its cursor stands in.
        const int colonna = ctlGrid.corrente().colonna;
        ctlGrid.paginaAiuto = categoria(colonna)
                                  ? categorieTraffico[static_cast<std::size_t>(colonna - col::prima)].paginaAiuto
                                  : (colonna == col::totale ? paginaTotale : paginaFlusso);
    }
    if (fuoco() != nullptr) {
        ctlHelp.pagina(fuoco()->paginaAiuto);
    }
}

}  // namespace kelvo

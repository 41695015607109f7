#include "input/frmMatriceSvolte.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <utility>

#include "app/percorsi.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "base/somma.h"
#include "input/frmPreviewMatriceSvolte.h"
#include "shell/servizi/incolla.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Matrice delle svolte";
constexpr const char* inPercento = "VALORI ESPRESSI IN PERCENTUALE";
constexpr const char* veicoli = "[veicoli]";
constexpr const char* percento = "[%]";
constexpr const char* flussi = "Flussi";
constexpr const char* paginaMatrice = "MatriceSvolte.htm";
constexpr const char* paginaFlussi = "FlussiMatrice.htm";
constexpr const char* paginaNomi = "NomiMatrice.htm";
}  // namespace testi

constexpr std::size_t massimiIngressi = 7;
constexpr Colore rosso{255, 140, 140};
constexpr Colore correzione{160, 0, 24};
constexpr double massimoCella = 32767.0;
constexpr std::int16_t matriceInPercento = 1;
constexpr float intero = 100.0F;

std::string lettera(std::size_t i) {
    return std::string(1, static_cast<char>('A' + i));
}

template <std::size_t... I>
std::array<Etichetta, massimiIngressi> etichette(const std::string& nome, std::index_sequence<I...> /*indici*/) {
    return {Etichetta{nome + std::to_string(I + 1)}...};
}

template <std::size_t... I>
std::array<tBox, massimiIngressi> caselle(std::index_sequence<I...> /*indici*/) {
    return {tBox{"txtIngresso" + std::to_string(I + 1), tBox::textbox}...};
}

constexpr auto sette = std::make_index_sequence<massimiIngressi>();

/// A cell of a total.
void mostraTotale(Cella& cella, float totale) {
    cella.testo = testoNumero(totale);
}

}  // namespace

frmMatriceSvolte::frmMatriceSvolte(const Contorno& contorno, DialogoAnteprima& dialogo, StampaPagine* stampa)
    : FinestraDati(contorno, "frmMatriceSvolte", testi::didascalia),
      CartaDati(*this, contorno, stampa),
      lblIngresso(etichette("lblIngresso", sette)),
      txtIngresso(caselle(sette)),
      lblPercentualeROSSO("lblPercentualeROSSO", testi::inPercento, "ROSSO"),
      frmTotaleEntrate("frmTotaleEntrate", "Totale entrate", {&ctlGridEntrate}),
      lblVeicoliEntrate(etichette("lblVeicoliEntrate", sette)),
      frmTotaleUscite("frmTotaleUscite", "Totale uscite", {&ctlGridUscite}),
      lblVeicoliUscite(etichette("lblVeicoliUscite", sette)),
      lblMovimento("lblMovimento"),
      chkFlussi("chkFlussi", testi::flussi, Casella::bottone),
      ctlPianta("ctlPianta", [this] { return soggettoPianta(); }),
      cmdImportaCSV("cmdImportaCSV", bottoneImportaCSV),
      dialogo_(dialogo) {
    // The names are there to be read: the keyboard goes to the matrix first.
    std::vector<Controllo*> controlli{&lblPercentualeROSSO, &ctlGrid,       &frmTotaleEntrate, &ctlGridEntrate,
                                      &frmTotaleUscite,     &ctlGridUscite, &cmdImportaCSV,    &lblMovimento,
                                      &chkFlussi,           &ctlPianta};
    for (std::size_t i = 0; i < massimiIngressi; ++i) {
        lblIngresso[i].testo("Ingresso " + lettera(i) + ":");
        txtIngresso[i].solaLettura(true);
        txtIngresso[i].paginaAiuto = testi::paginaNomi;
        controlli.push_back(&lblIngresso[i]);
        controlli.push_back(&txtIngresso[i]);
    }
    for (std::size_t i = 0; i < massimiIngressi; ++i) {
        controlli.push_back(&lblVeicoliEntrate[i]);
        controlli.push_back(&lblVeicoliUscite[i]);
    }
    controlli.push_back(&ctlPicture);
    cmdImportaCSV.allaPressione = [this] { importaCSV(this->contorno(), dialogo_, bersaglioCSV()); };
    conArchivio();
    ordina(controlli);
    preparaGriglie();
    movimentoMutato_.connect([this] { ctlPianta.mutata(); });
}

void frmMatriceSvolte::preparaGriglie() {
    ctlGrid.versoInvio = Griglia::Verso::destra;
    ctlGrid.modificabile = [](Posto p) { return p.riga != p.colonna; };
    ctlGrid.salta = [](Posto p) { return p.riga == p.colonna; };
    ctlGrid.ornamento = ornamentoMatrice;
    ctlGrid.allaConferma = [this](Posto /*posto*/, std::string& testo) { return confermaCella(testo); };
    ctlGrid.allIncolla = [this](std::vector<TestoCella>& celle) { return esaminaBlocco(celle); };
    ctlGrid.dopoModifica = [this](const std::vector<Posto>& /*posti*/) {
        DatiAllineati(!ctlGrid.modificata());
        ricalcola();
    };
    ctlGrid.alMovimento = [this](Posto /*posto*/) { mostraMovimento(); };
    chkFlussi.alClic = [this] { movimentoMutato_.emit(); };
    for (int c = 1; c <= static_cast<int>(massimiIngressi); ++c) {
        ctlGrid.colonna(c, {.regole = {.caratteri = "0123456789", .esclusoChiude = true}});
    }
    // The totals are there to be read: no cursor stops in them.
    ctlGridEntrate.salta = [](Posto /*posto*/) { return true; };
    ctlGridUscite.salta = [](Posto /*posto*/) { return true; };
    ctlGridEntrate.ornamento = [this](Posto p) {
        OrnamentoCella ornato;
        if (ctlGridEntrate.tabella().cella(p.riga, p.colonna).sfondo == rosso) {
            ornato.segno = OrnamentoCella::Segno::attenzione;
        }
        return ornato;
    };
}

bool frmMatriceSvolte::percentuale() const {
    return app().theRotonda().TipoMatriceSvolte() == matriceInPercento;
}

void frmMatriceSvolte::ReadData() {
    gestisci("frmMatriceSvolte:Immagini", [this] {
        mostraUnita();
        mostraNomi();
        mostraMatrice();
        ctlPicture.risorsa("RAMI" + testoNumero(static_cast<int>(rotonda().NumeroRami())));
        AggiornaTotali();
        AggiornaEsitoRighe();
        DatiAllineati(true);
        mostraMovimento();
    });
}

void frmMatriceSvolte::mostraUnita() {
    const bool inPercento = percentuale();
    for (std::size_t i = 0; i < massimiIngressi; ++i) {
        const bool usata = i < static_cast<std::size_t>(rotonda().NumeroRami());
        for (Etichetta* unita : {&lblVeicoliEntrate[i], &lblVeicoliUscite[i]}) {
            unita->testo(inPercento ? testi::percento : testi::veicoli);
        }
        lblVeicoliEntrate[i].visibile(usata);
        lblVeicoliUscite[i].visibile(usata && !inPercento);
    }
    lblPercentualeROSSO.visibile(inPercento);
    frmTotaleUscite.visibile(!inPercento);
    ctlGridUscite.visibile(!inPercento);
    frmTotaleEntrate.abilitato(true);
}

void frmMatriceSvolte::mostraNomi() {
    for (std::size_t i = 0; i < massimiIngressi; ++i) {
        const bool usato = i < static_cast<std::size_t>(rotonda().NumeroRami());
        lblIngresso[i].visibile(usato);
        txtIngresso[i].visibile(usato);
        txtIngresso[i].testo(usato ? rotonda().Ramo(static_cast<std::int16_t>(i + 1)).Descrizione() : std::string{});
    }
}

void frmMatriceSvolte::mostraMatrice() {
    rotonda().GetMatriceSvolte(Matrice_);
    const auto rami = static_cast<int>(Matrice_.size());
    Tabella tabella = tabellaMatrice(rami);
    for (int i = 1; i <= rami; ++i) {
        for (int j = 1; j <= rami; ++j) {
            if (i != j) {
                tabella.cella(i, j).testo =
                    testoNumero(Matrice_[static_cast<std::size_t>(i) - 1][static_cast<std::size_t>(j) - 1]);
            }
        }
    }
    ctlGrid.tabella(std::move(tabella));
    ctlGridEntrate.tabella(Tabella(rami, 1));
    ctlGridUscite.tabella(Tabella(1, rami));
}

float frmMatriceSvolte::valore(int riga, int colonna) const {
    return aSingolo(numeroIncollato(ctlGrid.testo(riga, colonna)).value_or(0.0));
}

Matrice frmMatriceSvolte::mostrata() const {
    const auto rami = static_cast<std::size_t>(std::max(0, ctlGrid.tabella().righe() - 1));
    Matrice valori(rami, std::vector<float>(rami, 0.0F));
    for (std::size_t i = 0; i < rami; ++i) {
        for (std::size_t j = 0; j < rami; ++j) {
            valori[i][j] = valore(static_cast<int>(i) + 1, static_cast<int>(j) + 1);
        }
    }
    return valori;
}

void frmMatriceSvolte::SaveData() {
    gestisci("frmMatriceSvolte:SaveData()", [this] {
        if (!ctlGrid.lascia()) {
            stato().convalidaFallita = true;
            return;
        }
        const auto rami = static_cast<std::int16_t>(ctlGrid.tabella().righe() - 1);
        const bool mutata = ctlGrid.modificata();
        for (std::int16_t i = 1; mutata && i <= rami; ++i) {
            for (std::int16_t j = 1; j <= rami; ++j) {
                if (i == j || ctlGrid.modificata({i, j})) {
                    rotonda().MatriceSvolte(valore(i, j), i, j);
                }
            }
        }
        ctlGrid.salvata();
        DatiAllineati(true);
    });
}

void frmMatriceSvolte::AggiornaTotali() {
    const int rami = ctlGrid.tabella().righe() - 1;
    const auto totale = [&](int indice, bool diRiga) {
        std::vector<float> valori;
        for (int k = 1; k <= rami; ++k) {
            valori.push_back(diRiga ? valore(indice, k) : valore(k, indice));
        }
        return sommaMostrata(valori);
    };
    ctlGridEntrate.modifica([&](Tabella& t) {
        for (int i = 0; i < rami; ++i) {
            mostraTotale(t.cella(i, 0), totale(i + 1, true));
        }
    });
    ctlGridUscite.modifica([&](Tabella& t) {
        for (int j = 0; j < rami; ++j) {
            mostraTotale(t.cella(0, j), totale(j + 1, false));
        }
    });
}

void frmMatriceSvolte::AggiornaEsitoRighe() {
    const bool inPercento = percentuale();
    ctlGridEntrate.modifica([&](Tabella& t) {
        for (int i = 0; i < t.righe(); ++i) {
            Cella& cella = t.cella(i, 0);
            Etichetta& unita = lblVeicoliEntrate[static_cast<std::size_t>(i)];
            const float totale = leggiSingolo(cella.testo).value_or(0.0F);
            const bool mancante = inPercento && totale != intero && totale != 0.0F;
            cella.sfondo = mancante ? rosso : colori::bianco;
            cella.grassetto = mancante;
            Aspetto aspetto = unita.aspetto();
            aspetto.inchiostro = mancante ? correzione : colori::nero;
            unita.aspetto(aspetto);
            if (!mancante) {
                unita.testo(inPercento ? testi::percento : testi::veicoli);
                continue;
            }
            const float d = sommaMostrata(std::array{intero, -totale});
            unita.testo(std::string{"[%] ["} + (d < 0.0F ? " sottrarre " : " aggiungere ") + testoNumero(std::fabs(d)) +
                        "]");
        }
    });
}

void frmMatriceSvolte::ricalcola() {
    gestisci("frmMatriceSvolte:Immagini", [this] {
        AggiornaTotali();
        AggiornaEsitoRighe();
        mostraMovimento();
    });
}

void frmMatriceSvolte::mostraMovimento() {
    const Posto cella = movimento();
    std::string parole;
    if (cella.riga > 0) {
        const std::string& valore = ctlGrid.testo(cella.riga, cella.colonna);
        parole = "Da " + ctlGrid.testo(cella.riga, 0) + " verso " + ctlGrid.testo(0, cella.colonna) + ": " +
                 (valore.empty() ? "0" : valore) +
                 (percentuale()   ? " %"
                  : valore == "1" ? " veicolo"
                                  : " veicoli");
    }
    lblMovimento.testo(parole);
    movimentoMutato_.emit();
}

pianta::DatiPianta frmMatriceSvolte::piantaMostrata() const {
    return pianta::datiPianta(app().theRotonda());
}

pianta::OpzioniPianta frmMatriceSvolte::opzioniPianta() const {
    pianta::OpzioniPianta opzioni{.nomi = false};
    if (movimento().riga > 0) {
        opzioni.movimento = pianta::Movimento{movimento().riga, movimento().colonna};
    }
    if (chkFlussi.spuntata()) {
        opzioni.flussi = mostrata();
    }
    return opzioni;
}

DocumentoPagine::Pianta frmMatriceSvolte::soggettoPianta() const {
    if (ctlGrid.tabella().righe() == 0) {
        return {};  // the window has not come up yet
    }
    return piantaDaMostrare(piantaMostrata(), opzioniPianta());
}

CartaDati::Blocchi frmMatriceSvolte::blocchiSuCarta() const {
    using D = DocumentoPagine;
    constexpr double quota = 0.75;  // on one page with the table
    D::Tabella matrice = tabellaSuCarta(ctlGrid);
    matrice.colonne.push_back({"Totale", matrice.colonne.empty() ? 1.0 : matrice.colonne.back().peso});
    for (std::size_t r = 0; r < matrice.righe.size(); ++r) {
        matrice.righe[r].push_back({.testo = ctlGridEntrate.testo(static_cast<int>(r), 0), .grassetto = true});
    }
    if (ctlGridUscite.visibile()) {
        std::vector<D::Cella>& totali = matrice.righe.emplace_back();
        totali.push_back({.testo = "Totale", .grassetto = true});
        for (int c = 0; c < ctlGridUscite.tabella().colonne(); ++c) {
            totali.push_back({.testo = ctlGridUscite.testo(0, c), .grassetto = true});
        }
        totali.resize(matrice.colonne.size());
    }
    return {
        D::Figura{.contenuto = soggettoPianta(), .larghezza = quota, .forma = 1.0, .didascalia = lblMovimento.testo()},
        std::move(matrice),
        D::Paragrafo{.testo = percentuale() ? testi::inPercento : "Valori espressi in veicoli", .quieto = true}};
}

void frmMatriceSvolte::entrato(Controllo& campo) {
    FinestraDati::entrato(campo);
    if (&campo == &ctlGrid) {
        ctlHelp.pagina(testi::paginaMatrice);
    } else if (&campo == &chkFlussi) {
        ctlHelp.pagina(testi::paginaFlussi);
    }
}

EsitoUscita frmMatriceSvolte::confermaCella(std::string& testo) {
    EsitoUscita esito = EsitoUscita::rifiuto("Il valore di una svolta va da 0 a 32767.");
    const std::optional<double> numero = numeroIncollato(testo);
    if (!numero || *numero < 0.0) {
        return esito;
    }
    gestisci("frmMatriceSvolte:Immagini", [&] {
        testo = testoNumero(static_cast<int>(aIntero16(arrotondaPari(*numero))));
        esito = EsitoUscita::bene();
    });
    return esito;
}

EsitoUscita frmMatriceSvolte::esaminaBlocco(std::vector<TestoCella>& celle) const {
    for (TestoCella& cella : celle) {
        const std::optional<double> numero = numeroIncollato(cella.testo);
        if (!numero) {
            return rifiutoBlocco(ctlGrid, cella, motivoNonNumero(cella.testo));
        }
        if (*numero < 0.0 || *numero > massimoCella) {
            return rifiutoBlocco(ctlGrid, cella, "non sta tra 0 e 32767");
        }
        cella.testo = testoNumero(static_cast<float>(*numero));
    }
    return EsitoUscita::bene();
}

BersaglioCSV frmMatriceSvolte::bersaglioCSV() {
    BersaglioCSV bersaglio{
        .tipo = "Matrice", .didascalia = "Importa la matrice delle svolte da CSV", .griglia = ctlGrid, .colonne = {}};
    for (int i = 0; i < ctlGrid.tabella().righe() - 1; ++i) {
        const auto ramo = static_cast<std::size_t>(i);
        bersaglio.colonne.push_back({.titolo = "Uscita " + lettera(ramo),
                                     .colonna = i + 1,
                                     .altri = {lettera(ramo), txtIngresso[ramo].testo()}});
    }
    return bersaglio;
}

void frmMatriceSvolte::CaricaDaProgetto() {
    gestisci("frmMatriceSvolte:Archivo", [this] {
        frmPreviewMatriceSvolte anteprima(contorno());
        if (!dialogo_.apri(AnteprimaProgetto::richiesta(cartellaProgetti(app().theAmbiente)), anteprima)) {
            return;
        }
        const int rami = ctlGrid.tabella().righe() - 1;
        std::vector<TestoCella> celle;
        for (int i = 1; i <= rami; ++i) {
            for (int j = 1; j <= rami; ++j) {
                celle.push_back({{i, j},
                                 i == j ? std::string{}
                                        : testoNumero(static_cast<int>(anteprima.GetMatriceSvolte(
                                              static_cast<std::int16_t>(i), static_cast<std::int16_t>(j))))});
            }
        }
        ctlGrid.inserisci(celle);  // totals and corrections follow
    });
}

}  // namespace kelvo

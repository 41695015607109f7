#include "ui/banco.h"

#include <fmt/format.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QSpinBox>
#include <filesystem>
#include <string>

#include "model/proprieta.h"
#include "reports/modEXCEL.h"

namespace kelvo::prove {

using gesti::attendi;
using gesti::smaltisci;
using gesti::tasto;

namespace {

std::string configurazione(int disposizione) {
    return fmt::format(
        "[FILE_LOG]\nPathError=FILELOGERROR.TXT\n[LAY_OUT]\nCustomPanel=3\n[10_MOTIVI]\nAvvia=1\n"
        "[OPZ_EXPLORER]\nRami={}\n[VEICOLI EQUIVALENTI]\nAutoarticolati=2,5\nAutotreni=2\nPullman=1,8\nCamper=1,4\n"
        "Roulotte=1,2\nMotocicli=0,8\nAutovetture=1\n",
        disposizione);
}

std::string testo(const std::string& valore) {
    return valore;
}
template <class V>
std::string testo(V valore) {
    return fmt::format("{}", valore);
}

template <class O>
void raccogli(std::map<std::string, std::string>& valori, const std::string& dove, const O& oggetto) {
    perOgniProprieta(&oggetto, [&](const auto& p) { valori[dove + p.nome] = testo((oggetto.*p.leggi)()); });
}

void raccogliSegmenti(std::map<std::string, std::string>& valori, const std::string& dove, const Ramo& ramo) {
    const DatiTraffico& traffico = ramo.theDatiTraffico();
    valori[dove + "segmenti"] = testo(traffico.NumSegmentiTempo());
    for (std::int16_t s = 0; s < traffico.NumSegmentiTempo(); ++s) {
        valori[fmt::format("{}flusso {}", dove, s)] = testo(traffico.FlussoSegmento(s, 0));
    }
    const ComposizioneTraffico& composizione = ramo.theComposizioneTraffico();
    valori[dove + "segmenti della composizione"] = testo(composizione.NumSegmentiTempo());
    for (std::int16_t s = 0; s < composizione.NumSegmentiTempo(); ++s) {
        for (std::int16_t c = 0; c < numeroClassi; ++c) {
            valori[fmt::format("{}classe {} {}", dove, s, c)] = testo(composizione.CategoriaSegmento(s, c));
        }
    }
}

}  // namespace

std::map<std::string, std::string> istantanea(const Rotonda& rotonda) {
    std::map<std::string, std::string> valori;
    raccogli(valori, "Rotonda/", rotonda);
    valori["Rotonda/NumeroRami"] = testo(rotonda.NumeroRami());
    for (std::int16_t i = 1; i <= rotonda.Rami().Count(); ++i) {
        const std::string dove = fmt::format("Ramo {}/", i);
        const Ramo& ramo = rotonda.Ramo(i);
        raccogli(valori, dove, ramo);
        raccogli(valori, dove + "DatiTraffico/", ramo.theDatiTraffico());
        raccogli(valori, dove + "ComposizioneTraffico/", ramo.theComposizioneTraffico());
        raccogli(valori, dove + "AnalisiMarginale/", ramo.theAnalisiMarginale());
        raccogliSegmenti(valori, dove, ramo);
        for (std::int16_t j = 1; j <= rotonda.Rami().Count(); ++j) {
            valori[fmt::format("Matrice {} {}", i, j)] = testo(rotonda.MatriceSvolte(i, j));
        }
    }
    return valori;
}

Banco::Banco(int disposizione, SistemaFile& file)
    : app(cartella.percorso(), cartella.percorso(), {messaggi, orologio, file}),
      cornice(app, stato,
              {vista, dialogo, documenti, impostazioni, cronometro, cartella.file("Recupero"), &disegnatore, nullptr,
               &registro, &cad}) {
    scriviContenuto(cartella.file("Kelvo.ini"), configurazione(disposizione));
    app.configurazione.coefficienti(coefficientiDiFabbrica);
    app.configurazione.PathErrore = "FILELOGERROR.TXT";
    app.configurazione.LayoutPannello = 3;
    const auto foglio = [this](const std::string& /*scambio*/) {
        modEXCEL(app, {.messaggi = messaggi, .documenti = &documenti}).compilaRelazioneExcel();
    };
    registraFinestre(cornice.finestre, {.documenti = documenti,
                                        .anteprima = anteprima,
                                        .collegate = collegate,
                                        .cronometro = simulazione,
                                        .foglio = foglio,
                                        .campi = &campi,
                                        .stampa = &stampa,
                                        .attesa = &attesa,
                                        .pdf = &pdf});
    collegate.collegaA(cornice);
    vista.collegaA(cornice);
}

Banco::~Banco() {
    // The views go while the logic that they show still stands.
    if (!cornice.scaricata()) {
        messaggi.risposte.clear();
        cornice.Unload();
    }
    smaltisci();
}

void Banco::mostra() {
    cornice.Load();
    vista.mostraCornice();
    ASSERT_TRUE(gesti::davanti(vista));
    smaltisci();
}

void Banco::nuovo(int rami) {
    gesti::AlModale finestra("frmInputNumeroRami", [&](QWidget& dialogo_) {
        auto* numero = dialogo_.findChild<QSpinBox*>(QStringLiteral("txtNumeroRami"));
        ASSERT_TRUE(attendi([&] { return numero->hasFocus(); }));
        while (numero->value() != rami) {
            tasto(numero->value() < rami ? Qt::Key_Up : Qt::Key_Down);
        }
        tasto(Qt::Key_Return);
    });
    tasto(Qt::Key_N, Qt::ControlModifier);
    ASSERT_TRUE(attendi([&] { return finestra.avvenuto() && stato.ProgettoAperto; }));
    ASSERT_FALSE(finestra.rimasto());
    ASSERT_TRUE(gesti::davanti(vista));
    ASSERT_TRUE(attendi([&] { return gesti::selezionato(albero()) == "keyMyProject"; }));
}

void Banco::apri(const std::string& percorso) {
    dialogo.scelte.push_back(percorso);
    tasto(Qt::Key_O, Qt::ControlModifier);
    ASSERT_TRUE(attendi([&] { return stato.ProgettoAperto; })) << percorso;
    ASSERT_TRUE(attendi([&] { return gesti::selezionato(albero()) == "keyMyProject"; }));
}

bool Banco::salva(const std::string& percorso) {
    const std::size_t prima = dialogo.richieste.size();
    dialogo.scelte.push_back(percorso);
    tasto(Qt::Key_S, Qt::ControlModifier);
    return attendi([&] { return dialogo.richieste.size() > prima; }) && std::filesystem::exists(percorso);
}

void Banco::chiudi() {
    messaggi.risposte.push_back(Risposta::no);
    tasto(Qt::Key_W, Qt::ControlModifier);
    ASSERT_TRUE(attendi([&] { return !stato.ProgettoAperto; }));
    smaltisci();
}

QTreeWidget& Banco::albero() {
    return *vista.findChild<QTreeWidget*>(QStringLiteral("ctlTree"));
}

void Banco::vai(const std::string& chiave) {
    gesti::clicNodo(albero(), chiave);
    ASSERT_TRUE(attendi([&] { return gesti::selezionato(albero()) == chiave; })) << chiave;
    smaltisci();  // the keyboard goes to the first field from the event loop
}

std::string Banco::nomeCorrente() {
    return cornice.gestione.corrente() == nullptr ? std::string{} : cornice.gestione.corrente()->nome();
}

QWidget& Banco::entra(const char* nome) {
    QWidget& campo = oggetto(nome);
    campo.setFocus(Qt::MouseFocusReason);
    smaltisci();
    return campo;
}

}  // namespace kelvo::prove

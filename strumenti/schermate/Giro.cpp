#include "schermate/Giro.h"

#include <fmt/format.h>

#include <QtCore/QFileInfo>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtGui/QAction>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "app/titoli.h"
#include "base/file.h"
#include "cad/frmLinkACAD.h"
#include "input/frmMatriceSvolte.h"
#include "input/frmPreviewMatriceSvolte.h"
#include "input/frmPreviewRami.h"
#include "schermate/installazioneMostrata.h"
#include "shell/finestrePerChiave.h"
#include "shell/frmSplash.h"
#include "shell/registroFinestre.h"
#include "shell/servizi/tBox.h"
#include "ui/VistaFinestra.h"
#include "ui/legami.h"
#include "ui/serviziQt.h"

namespace kelvo::schermate {

namespace {

/// A message of each kind, in words that the program says.
struct Messaggio {
    const char* nome;
    Icona icona;
    Pulsanti pulsanti;
    const char* titolo;
    const char* testo;
};
constexpr std::array messaggiMostrati{
    Messaggio{"messaggio-critica", Icona::critica, Pulsanti::ok, "KELVO 2014 - Errore",
              "Attenzione, non sono permessi i caratteri: \\/:*?\"<>|"},
    Messaggio{"messaggio-esclamazione", Icona::esclamazione, Pulsanti::ok, titoli::attenzione,
              "Attenzione, i parametri di modellazione sono stati modificati.\nI dati di traffico dovranno essere "
              "nuovamente inseriti"},
    Messaggio{"messaggio-informazione", Icona::informazione, Pulsanti::ok, "KELVO 2014 - Informazione",
              "Sono consentiti valori compresi tra <5> e <30> minuti"},
    Messaggio{"messaggio-domanda", Icona::domanda, Pulsanti::siNo, titoli::attenzione,
              "Attenzione! Salvare il progetto corrente prima di chiuderlo?"},
    Messaggio{"messaggio-domanda-annulla", Icona::domanda, Pulsanti::siNoAnnulla, titoli::attenzione,
              "Vuoi salvare la rotonda prima di uscire dal programma?"},
    Messaggio{"messaggio-conferma", Icona::esclamazione, Pulsanti::okAnnulla, titoli::attenzione,
              "Attenzione! Sono state modificate delle opzioni: verificare con attenzione i dati precedentemente "
              "inseriti."},
    Messaggio{"messaggio-senza-segno", Icona::nessuna, Pulsanti::ok, "KELVO 2014", "Operazione annullata"},
};

/// A field with a text that it refuses.
constexpr const char* chiaveRifiuto = "keyTempoModellazione";
constexpr const char* finestraRifiuto = "frmTempoModellazione";
constexpr const char* campoRifiuto = "txtSegmentoTempo";
constexpr const char* testoRifiuto = "45";

/// A measure that is being looked at.
constexpr const char* chiaveMisura = "keyRamo1";
constexpr const char* finestraMisura = "frmParametriRamo";
constexpr const char* campoMisura = "txtLarghezzaIngresso";

/// What a counting office hands over: a row for each leg.
constexpr const char* svolteCSV =
    "Ingresso;A;B;C;D;Totale\r\nA;0;120;85;42;247\r\nB;96;0;110;61;267\r\nC;74;132;0;58;264\r\nD;51;47;63;0;161\r\n";

/// How long the list of a folder is waited for.
constexpr int passiElenco = 20;
constexpr int passoElenco = 10;  ///< ms

/// The pictures that a file names, one a line, each with the part that is wanted of it.
std::map<std::string, Fotografo::Parte> leggiElenco(const std::string& percorso) {
    std::map<std::string, Fotografo::Parte> elenco;
    std::ifstream file(percorso);
    for (std::string riga; std::getline(file, riga);) {
        std::istringstream parole(riga);
        std::string nome;
        std::string parte;
        if (parole >> nome) {
            parole >> parte;
            elenco[nome] = parte == "finestra" ? Fotografo::Parte::finestra : Fotografo::Parte::intera;
        }
    }
    return elenco;
}

std::string nomeDi(const std::string& percorso) {
    return std::filesystem::path(percorso).stem().string();
}

}  // namespace

Giro::Giro(const Richiesta& richiesta, const Installazione& installazione, SistemaFile& file)
    : richiesta_(richiesta),
      progetti_(richiesta.progetti.empty() ? installazione.esempi() : richiesta.progetti),
      orologio_(!richiesta.elenco.empty()),
      cartellaLavoro_(installazione.lavoro()),
      app_(installazione.programma(), installazione.lavoro(), {detti_, orologio_, file}),
      cornice_(app_, stato_,
               {vista_, dialogo_, documenti_, impostazioni_, cronometro_, installazione.recupero(), nullptr, nullptr,
                &registro_, &cad_}),
      fotografo_(richiesta.cartella) {
    registraFinestre(cornice_.finestre, {.documenti = documenti_,
                                         .anteprima = anteprima_,
                                         .collegate = collegate_,
                                         .cronometro = cronometro_,
                                         .foglio = [](const std::string& /*scambio*/) {},
                                         .stampa = &stampa_,
                                         .attesa = &attesa_});
    app_.appunti = &appunti_;
    collegate_.collegaA(cornice_);
    vista_.collegaA(cornice_);
    app_.comune.LeggiConfigurazione();
    cornice_.InitGraphics();
    cornice_.Load();
    vista_.resize(richiesta.larghezza, richiesta.altezza);
    vista_.mostraCornice();
    QApplication::setActiveWindow(&vista_);
    if (!richiesta.elenco.empty()) {
        fotografo_.solo(leggiElenco(richiesta.elenco), vista_, [this] {
            const QWidget* finestra = vista_.vistaCorrente();
            return finestra == nullptr ? vista_.rect()
                                       : QRect(finestra->mapTo(&vista_, QPoint(0, 0)), finestra->size());
        });
    }
}

std::string Giro::percorri() {
    senzaProgetto();
    std::string errori;
    bool primo = true;
    for (const std::string& percorso : progetti_) {
        errori += progetto(percorso, primo);
        primo = false;
    }
    dialoghi();
    messaggi();
    errori += nonAttesi();
    if (!fotografo_.fallite().empty()) {
        errori += "immagini non scritte: " + fotografo_.fallite() + "\n";
    }
    return errori;
}

void Giro::senzaProgetto() {
    fotografo_.scatta(vista_, "senza-progetto");
}

std::string Giro::progetto(const std::string& percorso, bool primo) {
    cornice_.LoadRotonda(percorso);
    if (!stato_.ProgettoAperto) {
        detti_.detti.clear();
        return "il progetto '" + percorso + "' non si apre\n";
    }
    finestre(nomeDi(percorso));
    relazioni(nomeDi(percorso));
    if (primo) {
        disposizioniAlbero();
        menu();
        misuraInUso();
        anteprima(percorso);
        campoRifiutato();
    }
    return nonAttesi();
}

void Giro::finestre(const std::string& progetto) {
    std::set<std::string> fatte;
    for (const FinestraDiChiave& riga : finestrePerChiave) {
        const std::string chiave = std::string{riga.chiave} + (riga.perRamo ? "1" : "");
        const std::string nome{cornice_.albero.finestra(chiave)};
        if (!cornice_.finestre.conosce(nome) || fatte.count(nome) != 0) {
            continue;
        }
        if (cornice_.albero.mostra(chiave)) {
            fatte.insert(nome);
            mostrate_.insert(nome);
            const std::string immagine = fmt::format("{}-{}", nome, progetto);
            fotografo_.scatta(vista_, immagine);
            Finestra& aperta = *cornice_.finestre.viva(nome);
            if (!ipotesi(aperta, immagine)) {
                calcolata(aperta, immagine);
            }
            controllata(aperta, progetto);
        }
    }
}

void Giro::disposizioniAlbero() {
    struct Disposizione {
        std::int16_t valore = 0;
        const char* nome = "";
    };
    constexpr std::array disposizioni{Disposizione{1, "albero-per-tipo"}, Disposizione{0, "albero-per-ramo"}};
    for (const Disposizione& d : disposizioni) {
        app_.comune.ScriviOpzExplorer(d.valore);
        cornice_.LoadTreeView();
        cornice_.albero.mostra("keyMyProject");
        fotografo_.scatta(vista_, d.nome);
    }
}

void Giro::menu() {
    lasciaCorrere();
    for (QAction* voce : vista_.menuBar()->actions()) {
        QMenu* tendina = voce->menu();
        if (tendina == nullptr || tendina->isEmpty() || !voce->isEnabled()) {
            continue;
        }
        const QPoint posto = vista_.menuBar()->actionGeometry(voce).bottomLeft() + QPoint(0, 1);
        vista_.menuBar()->setActiveAction(voce);
        tendina->popup(vista_.menuBar()->mapToGlobal(posto));
        fotografo_.scatta(vista_, *tendina, vista_.menuBar()->mapTo(&vista_, posto),
                          ("menu-" + voce->objectName()).toStdString());
        tendina->close();
        vista_.menuBar()->setActiveAction(nullptr);
    }
}

void Giro::campoRifiutato() {
    cornice_.albero.mostra(chiaveRifiuto);
    Finestra* finestra = cornice_.finestre.viva(finestraRifiuto);
    if (finestra == nullptr) {
        return;
    }
    lasciaCorrere();
    for (Controllo* controllo : finestra->ordine()) {
        auto* campo = dynamic_cast<tBox*>(controllo);
        if (campo != nullptr && campo->nome() == campoRifiuto) {
            if (auto* veduto = vista_.vistaCorrente()->findChild<QWidget*>(ui::q(campo->nome()))) {
                veduto->setFocus(Qt::TabFocusReason);
            }
            lasciaCorrere();
            campo->scrivi(testoRifiuto);
            campo->convalida();
        }
    }
    detti_.detti.clear();  // the refusal was asked for
    fotografo_.scatta(vista_, "campo-non-valido");
    finestra->barra()->premi("Refresh");
}

void Giro::misuraInUso() {
    cornice_.albero.mostra(chiaveMisura);
    Finestra* finestra = cornice_.finestre.viva(finestraMisura);
    auto* veduto = vista_.vistaCorrente()->findChild<QWidget*>(QString::fromLatin1(campoMisura));
    if (finestra == nullptr || veduto == nullptr) {
        return;
    }
    lasciaCorrere();
    veduto->setFocus(Qt::TabFocusReason);
    fotografo_.scatta(vista_, "misura-in-uso");
}

void Giro::ritrai(FinestraAnteprima& finestra, const RichiestaFile& richiesta, const std::string& percorso,
                  const std::function<void()>& prepara) {
    QTimer::singleShot(0, &vista_, [&] {
        auto* aperto = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (aperto == nullptr) {
            return;
        }
        const QFileInfo file(ui::q(percorso));
        aperto->setDirectory(file.absolutePath());
        for (int i = 0; i < passiElenco; ++i) {
            lasciaCorrere();  // the files of a folder come from the event loop
            QThread::msleep(passoElenco);
        }
        aperto->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(file.fileName());
        finestra.selezionato(percorso);
        prepara();
        fotografo_.scatta(*aperto, finestra.nome());
        aperto->reject();
    });
    anteprima_.apri(richiesta, finestra);
}

void Giro::anteprima(const std::string& percorso) {
    frmPreviewRami rami(cornice_.contorno());
    ritrai(rami, AnteprimaProgetto::richiesta({}), percorso, [&] { rami.lstRami.clicca("1"); });
    frmPreviewMatriceSvolte svolte(cornice_.contorno());
    ritrai(svolte, AnteprimaProgetto::richiesta({}), percorso, [] {});
    frmMatriceSvolte matrice(cornice_.contorno(), anteprima_);
    matrice.attivata();
    frmImportaCSV importa(cornice_.contorno(), matrice.bersaglioCSV());
    const std::string file = testoDaPercorso(std::filesystem::path(cartellaLavoro_) / "Svolte.csv");
    scriviFileSicuro(app_.file, file, svolteCSV);
    ritrai(importa, {.estensione = "csv", .filtro = "File CSV (*.csv)|*.csv", .cartella = {}, .nome = {}}, file, [] {});
}

void Giro::dialoghi() {
    std::vector<std::string> nomi;
    for (const std::string& nome : cornice_.finestre.nomi()) {
        if (mostrate_.count(nome) == 0) {
            nomi.push_back(nome);
        }
    }
    const auto ritrai = [this](Finestra& finestra, const std::string& immagine) {
        vista_.apriSopra(finestra);
        if (auto* dialogo = vista_.findChild<QDialog*>(ui::q(finestra.nome()))) {
            fotografo_.scatta(*dialogo, immagine);
        }
        vista_.chiudiSopra(finestra);
        lasciaCorrere();
    };
    impostazioni_.scrivi("KelvoCAD 2014", "StartUp", "FilePathKelvo", progettoMostrato);
    InstallazioneMostrata mostrata(app_);
    const Contorno suo = cornice_.contorno();
    const Contorno daUtente{mostrata.app(), suo.stato, suo.cornice, suo.navigazione, suo.servizi};
    for (const std::string& nome : nomi) {
        const bool percorsi = nome == "frmINFO" || nome == "frmLinkACAD";
        ritrai(cornice_.finestre.finestra(nome, percorsi ? daUtente : suo), nome);
        cornice_.finestre.distruggi(nome);
    }
    frmSplash splash(cornice_.contorno());
    splash.ctlProgresso.valore(splash.ctlProgresso.massimo() / 2);
    ritrai(splash, splash.nome());
    senzaCAD(ritrai);
}

void Giro::senzaCAD(const std::function<void(Finestra&, const std::string&)>& ritratto) {
    modKelvoCAD solo(app_, {documenti_, impostazioni_, cornice_});
    frmLinkACAD finestra(cornice_.contorno(), solo);
    ritratto(finestra, "frmLinkACAD-senza-versioni");
}

void Giro::messaggi() {
    ui::MessaggiQt veri;
    for (const Messaggio& m : messaggiMostrati) {
        QTimer::singleShot(0, &vista_, [this, &m] {
            if (auto* aperto = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                fotografo_.scatta(*aperto, m.nome);
                aperto->done(QDialog::Rejected);
            }
        });
        veri.mostra(m.testo, m.titolo, m.icona, m.pulsanti);
    }
}

std::string Giro::nonAttesi() {
    std::string errori;
    for (const std::string& detto : detti_.detti) {
        errori += "messaggio non atteso: " + detto + "\n";
    }
    detti_.detti.clear();
    return errori;
}

}  // namespace kelvo::schermate

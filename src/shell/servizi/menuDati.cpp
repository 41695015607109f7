#include "shell/servizi/menuDati.h"

#include <algorithm>
#include <array>

#include "app/percorsi.h"
#include "app/titoli.h"
#include "shell/servizi/carta.h"
#include "shell/servizi/esporta.h"

namespace kelvo {

namespace {

namespace chiave {
constexpr const char* radice = "mnuXDati";
constexpr const char* copia = "mnuXDatiCopia";
constexpr const char* copiaIntestazioni = "mnuXDatiCopiaIntestazioni";
constexpr const char* incolla = "mnuXDatiIncolla";
constexpr const char* csv = "mnuXDatiCSV";
constexpr const char* copiaImmagine = "mnuXDatiCopiaImmagine";
constexpr const char* png = "mnuXDatiPNG";
constexpr const char* svg = "mnuXDatiSVG";
constexpr const char* pdf = "mnuXDatiPDF";
constexpr const char* stampa = "mnuXDatiStampa";
constexpr const char* stampaPDF = "mnuXDatiStampaPDF";
}  // namespace chiave

namespace testi {
constexpr const char* tabellaVuota = "La tabella è vuota";
constexpr const char* graficoVuoto = "Il grafico non ha dati";
constexpr const char* nonDisponibile = "Non disponibile";
constexpr const char* cellaChiusa = "La cella non si può modificare";
constexpr const char* nonCopiata = "Impossibile copiare l'immagine: ";
constexpr const char* appuntiChiusi = "gli appunti non la accettano";
}  // namespace testi

/// An extension and the words of the dialogue for it.
struct Estensione {
    std::string_view estensione;
    const char* filtro;
};
constexpr std::array estensioni{
    Estensione{"csv", "File CSV (*.csv)|*.csv|Tutti i files(*.*)|*.*"},
    Estensione{"png", "Immagine PNG (*.png)|*.png|Tutti i files(*.*)|*.*"},
    Estensione{"svg", "Immagine SVG (*.svg)|*.svg|Tutti i files(*.*)|*.*"},
    Estensione{"pdf", "Documento PDF (*.pdf)|*.pdf|Tutti i files(*.*)|*.*"},
};

/// The formats of a picture.
struct VoceFormato {
    std::string_view chiave;
    std::string_view estensione;
    FormatoDisegno formato = FormatoDisegno::png;
};
constexpr std::array formati{
    VoceFormato{chiave::png, "png", FormatoDisegno::png},
    VoceFormato{chiave::svg, "svg", FormatoDisegno::svg},
    VoceFormato{chiave::pdf, "pdf", FormatoDisegno::pdf},
};

}  // namespace

MenuDati::MenuDati(Finestra& finestra, const Contorno& contorno, const std::string& nome)
    : finestra_(finestra), contorno_(contorno), menu_("menu_" + nome) {
    menu_.alClic = [this](const std::string& chiave) { premuta(chiave); };
}

void MenuDati::aggiungiProprie(const MenuChiavi& menu, const std::string& da, const std::string& a) {
    for (const MenuChiavi::Voce* voce : menu.figli(da)) {
        MenuChiavi::Voce copia = *voce;
        copia.padre = a;
        menu_.aggiungi(copia);
        if (!menu.figli(voce->chiave).empty()) {
            aggiungiProprie(menu, voce->chiave, voce->chiave);
        }
    }
}

MenuChiavi& MenuDati::menu() {
    if (!menu_.contiene(chiave::radice)) {
        menu_.aggiungiMenu(chiave::radice, {});
    }
    menu_.svuota(chiave::radice);
    const MenuChiavi* altro = proprio();
    if (altro != nullptr && !altro->figli({}).empty()) {
        aggiungiProprie(*altro, altro->figli({}).front()->chiave, chiave::radice);
    }
    if (!menu_.figli(chiave::radice).empty()) {
        menu_.aggiungi({.padre = chiave::radice, .testo = "-", .chiave = {}});
    }
    for (const Voce& voce : voci()) {
        aggiungi(voce, chiusa(voce.chiave));
    }
    aggiungiStampa();
    return menu_;
}

void MenuDati::aggiungi(const Voce& voce, const std::string& perche) {
    menu_.aggiungi({.padre = chiave::radice,
                    .testo = voce.testo,
                    .chiave = voce.chiave,
                    .abilitata = perche.empty(),
                    .scorciatoia = voce.scorciatoia,
                    .nota = perche});
}

void MenuDati::aggiungiStampa() {
    const auto* carta = dynamic_cast<const SuCarta*>(&finestra_);
    if (carta == nullptr) {
        return;
    }
    const std::string perche = carta->impedimentoStampa();
    const bool senzaDialogo = perche.empty() && contorno_.servizi.dialogo == nullptr;
    aggiungi({"mnuXDatiLineaStampa", "-", ""}, {});
    aggiungi({chiave::stampa, "Stampa...", tastoStampa}, perche);
    aggiungi({chiave::stampaPDF, "Stampa in PDF...", ""}, senzaDialogo ? testi::nonDisponibile : perche);
}

void MenuDati::premuta(const std::string& chiave) {
    MenuChiavi* altro = proprio();
    if (altro != nullptr && altro->contiene(chiave)) {
        altro->premi(chiave);
    } else if (chiave == chiave::stampa) {
        dynamic_cast<SuCarta&>(finestra_).stampaFigure();
    } else if (chiave == chiave::stampaPDF) {
        dynamic_cast<SuCarta&>(finestra_).salvaFigurePDF();
    } else if (finestra_.lasciaFuoco()) {
        esegui(chiave);
    }
}

void MenuDati::segnala(const std::string& testo) {
    contorno_.app.messaggi.mostra(testo, titoli::attenzione, Icona::esclamazione, Pulsanti::ok);
}

void MenuDati::salva(std::string_view estensione, const std::function<EsitoDisegno()>& dati) {
    const auto* voce = std::find_if(estensioni.begin(), estensioni.end(),
                                    [&](const Estensione& e) { return e.estensione == estensione; });
    const RichiestaFile richiesta{.estensione = std::string{estensione},
                                  .filtro = voce->filtro,
                                  .cartella = cartellaProgetti(contorno_.app.theAmbiente),
                                  .nome = nomeFileDati(finestra_.pannello.testo(), finestra_.sottotitolo.testo()) +
                                          "." + std::string{estensione}};
    const std::optional<std::string> percorso = contorno_.servizi.dialogo->salva(richiesta);
    if (!percorso) {
        return;
    }
    const EsitoDisegno esito = dati();
    const std::string errore =
        esito.errore.empty() ? scriviFileSicuro(contorno_.app.file, *percorso, esito.dati) : esito.errore;
    if (!errore.empty()) {
        segnala("Impossibile scrivere il file: " + errore + " (" + *percorso + ")");
        return;
    }
    contorno_.cornice.avviso("Scritto il file " + *percorso);
}

MenuTabella::MenuTabella(Finestra& finestra, const Contorno& contorno, Griglia& griglia)
    : MenuDati(finestra, contorno, griglia.nome()), griglia_(griglia) {
    griglia_.menuCompleto = [this]() -> MenuChiavi& { return menu(); };
}

std::vector<MenuDati::Voce> MenuTabella::voci() const {
    return {{chiave::copia, "Copia", "Ctrl+C"},
            {chiave::copiaIntestazioni, "Copia con intestazioni", "Ctrl+Shift+C"},
            {chiave::incolla, "Incolla", "Ctrl+V"},
            {"mnuXDatiLinea", "-", ""},
            {chiave::csv, "Salva come CSV...", ""}};
}

std::string MenuTabella::chiusa(std::string_view chiave) const {
    if (griglia_.tabella().righe() <= griglia_.righeFisse() || griglia_.tabella().colonne() == 0) {
        return testi::tabellaVuota;
    }
    const bool puo = chiave == chiave::csv ? contorno().servizi.dialogo != nullptr : contorno().app.appunti != nullptr;
    if (puo && chiave == chiave::incolla && !siIncolla()) {
        return testi::cellaChiusa;
    }
    return puo ? std::string{} : testi::nonDisponibile;
}

bool MenuTabella::siIncolla() const {
    const AreaCelle area = griglia_.selezione();
    for (int r = area.da.riga; r <= area.a.riga; ++r) {
        for (int c = area.da.colonna; c <= area.a.colonna; ++c) {
            if (griglia_.puoModificare({r, c})) {
                return true;
            }
        }
    }
    return false;
}

void MenuTabella::esegui(std::string_view chiave) {
    if (chiave == chiave::incolla) {
        griglia_.incolla(contorno().app.appunti->leggi());
    } else if (chiave == chiave::csv) {
        salva("csv", [this] { return EsitoDisegno{.dati = csvDiTabella(griglia_), .errore = {}}; });
    } else {
        copia(chiave == chiave::copiaIntestazioni);
    }
}

void MenuTabella::copia(bool conIntestazioni) {
    const bool scelte = griglia_.corrente().riga >= griglia_.righeFisse();
    contorno().app.appunti->scrivi(scelte ? griglia_.testoSelezione(conIntestazioni)
                                          : testoDiTabella(griglia_, conIntestazioni));
}

std::vector<MenuDati::Voce> MenuImmagine::voci() const {
    return {{chiave::copiaImmagine, "Copia immagine", ""},
            {"mnuXDatiLinea", "-", ""},
            {chiave::png, "Salva come PNG...", ""},
            {chiave::svg, "Salva come SVG...", ""},
            {chiave::pdf, "Salva come PDF...", ""}};
}

std::string MenuImmagine::chiusa(std::string_view chiave) const {
    if (std::string perche = vuota(); !perche.empty()) {
        return perche;
    }
    const ServiziContorno& servizi = contorno().servizi;
    const bool arriva = chiave == chiave::copiaImmagine ? servizi.immagini != nullptr : servizi.dialogo != nullptr;
    return arriva && servizi.disegnatore != nullptr ? std::string{} : testi::nonDisponibile;
}

void MenuImmagine::copia() {
    const EsitoDisegno esito = disegna(FormatoDisegno::png);
    if (!esito.errore.empty()) {
        segnala(testi::nonCopiata + esito.errore);
    } else if (!contorno().servizi.immagini->scrivi(esito.dati)) {
        segnala(std::string{testi::nonCopiata} + testi::appuntiChiusi);
    }
}

void MenuImmagine::esegui(std::string_view chiave) {
    if (chiave == chiave::copiaImmagine) {
        copia();
        return;
    }
    const auto* formato =
        std::find_if(formati.begin(), formati.end(), [&](const VoceFormato& voce) { return voce.chiave == chiave; });
    if (formato != formati.end()) {
        salva(formato->estensione, [&] { return disegna(formato->formato); });
    }
}

MenuGrafico::MenuGrafico(Finestra& finestra, const Contorno& contorno, Grafico& grafico)
    : MenuImmagine(finestra, contorno, grafico.nome()), grafico_(grafico) {
    grafico_.menuCompleto = [this]() -> MenuChiavi& { return menu(); };
}

std::vector<MenuDati::Voce> MenuGrafico::voci() const {
    std::vector<Voce> tutte = MenuImmagine::voci();
    tutte.push_back({chiave::csv, "Salva i dati come CSV...", ""});
    return tutte;
}

std::string MenuGrafico::vuota() const {
    return grafico_.vuoto() ? testi::graficoVuoto : std::string{};
}

std::string MenuGrafico::chiusa(std::string_view chiave) const {
    if (chiave != chiave::csv || grafico_.vuoto()) {
        return MenuImmagine::chiusa(chiave);
    }
    return contorno().servizi.dialogo != nullptr ? std::string{} : testi::nonDisponibile;
}

EsitoDisegno MenuGrafico::disegna(FormatoDisegno formato) const {
    return contorno().servizi.disegnatore->grafico(grafico_.contenuto(), formato, {.scala = scalaImmagineDati});
}

void MenuGrafico::esegui(std::string_view chiave) {
    if (chiave == chiave::csv) {
        salva("csv", [this] { return EsitoDisegno{.dati = csvDiGrafico(grafico_.contenuto()), .errore = {}}; });
    } else {
        MenuImmagine::esegui(chiave);
    }
}

}  // namespace kelvo

#include "reports/blocchi.h"

#include <fmt/format.h>

#include <array>
#include <cmath>

#include "base/guasto.h"
#include "reports/testo.h"

namespace kelvo::ooxml {

namespace {

constexpr double ventesimiPerMm = 1440.0 / 25.4;
constexpr double unitaPerMm = 36000.0;
constexpr double massimiMm = 1000.0;
constexpr std::size_t massimeColonne = 63;
constexpr std::string_view bordo = "A6A6A6";  // of a table whose style the document does not have

constexpr const char* spazioPagina = "http://schemas.openxmlformats.org/drawingml/2006/wordprocessingDrawing";
constexpr const char* spazioDisegno = "http://schemas.openxmlformats.org/drawingml/2006/main";
constexpr const char* spazioImmagine = "http://schemas.openxmlformats.org/drawingml/2006/picture";
constexpr const char* spazioRelazioni = "http://schemas.openxmlformats.org/officeDocument/2006/relationships";

std::string ventesimi(double mm) {
    return fmt::format("{}", std::llround(mm * ventesimiPerMm));
}

[[noreturn]] void rifiuta(std::string_view parole) {
    throw Guasto::conParole(NumeroGuasto::chiamataNonValida, parole);
}

bool misuraSana(double mm) {
    return mm > 0.0 && mm <= massimiMm;
}

std::string_view allineamento(AllineamentoTesto quale) {
    switch (quale) {
        case AllineamentoTesto::centro:
            return "center";
        case AllineamentoTesto::destra:
            return "right";
        case AllineamentoTesto::sinistra:
            break;
    }
    return "left";
}

/// The settings of a paragraph, in the order in which they must stand.
pugi::xml_node impostazioni(pugi::xml_node paragrafo, const std::string& stile) {
    pugi::xml_node voci = paragrafo.append_child("w:pPr");
    if (!stile.empty()) {
        figlio(voci, "w:pStyle", "w:val", stile);
    }
    return voci;
}

void bordi(pugi::xml_node tabella) {
    pugi::xml_node voci = tabella.append_child("w:tblBorders");
    for (const char* lato : {"w:top", "w:left", "w:bottom", "w:right", "w:insideH", "w:insideV"}) {
        const pugi::xml_node voce = figlio(voci, lato, "w:val", "single");
        imposta(voce, "w:sz", "4");
        imposta(voce, "w:space", "0");
        imposta(voce, "w:color", bordo);
    }
}

void testata(pugi::xml_node nodo, const TabellaRelazione& tabella, const Stili& stili) {
    double totale = 0.0;
    for (const ColonnaRelazione& colonna : tabella.colonne) {
        totale += colonna.larghezzaMm;
    }
    const std::string stile = stili.trova(tabella.stile, "table");
    pugi::xml_node voci = nodo.append_child("w:tblPr");
    if (!stile.empty()) {
        figlio(voci, "w:tblStyle", "w:val", stile);
    }
    imposta(figlio(voci, "w:tblW", "w:w", ventesimi(totale)), "w:type", "dxa");
    if (stile.empty()) {
        bordi(voci);
    }
    figlio(voci, "w:tblLayout", "w:type", "fixed");
    // First row and bands of rows as the style has them.
    figlio(voci, "w:tblLook", "w:val", "0420");
    pugi::xml_node griglia = nodo.append_child("w:tblGrid");
    for (const ColonnaRelazione& colonna : tabella.colonne) {
        figlio(griglia, "w:gridCol", "w:w", ventesimi(colonna.larghezzaMm));
    }
}

/// Where a cell stands and how it is written.
struct PostoCella {
    std::size_t colonna = 0;
    bool conSeguente = false;  ///< on the page of the row behind it
    std::string stile;
};

void riempiCella(pugi::xml_node nodo, const TabellaRelazione& tabella, const CellaRelazione& cella,
                 const PostoCella& posto) {
    double larghezza = 0.0;
    for (int i = 0; i < cella.colonne; ++i) {
        larghezza += tabella.colonne[posto.colonna + static_cast<std::size_t>(i)].larghezzaMm;
    }
    pugi::xml_node voci = nodo.append_child("w:tcPr");
    imposta(figlio(voci, "w:tcW", "w:w", ventesimi(larghezza)), "w:type", "dxa");
    if (cella.colonne > 1) {
        figlio(voci, "w:gridSpan", "w:val", std::to_string(cella.colonne));
    }
    if (!cella.sfondo.empty()) {
        const pugi::xml_node fondo = figlio(voci, "w:shd", "w:val", "clear");
        imposta(fondo, "w:color", "auto");
        imposta(fondo, "w:fill", cella.sfondo);
    }
    figlio(voci, "w:vAlign", "w:val", "center");
    pugi::xml_node paragrafo = nodo.append_child("w:p");
    pugi::xml_node come = impostazioni(paragrafo, posto.stile);
    if (posto.conSeguente) {
        come.append_child("w:keepNext");
    }
    const bool unita = cella.colonne > 1;
    figlio(come, "w:jc", "w:val",
           allineamento(unita ? AllineamentoTesto::centro : tabella.colonne[posto.colonna].allineamento));
    const std::string testo = testoAmmesso(cella.testo);
    if (testo.empty()) {
        return;
    }
    pugi::xml_node corsa = paragrafo.append_child("w:r");
    if (!cella.inchiostro.empty()) {
        figlio(corsa.append_child("w:rPr"), "w:color", "w:val", cella.inchiostro);
    }
    aggiungiValore(corsa, testo);
}

void riempiRiga(pugi::xml_node nodo, const TabellaRelazione& tabella, std::size_t riga, const std::string& stile) {
    const bool intestazione = riga < tabella.righeIntestazione;
    pugi::xml_node voci = nodo.append_child("w:trPr");
    voci.append_child("w:cantSplit");
    if (intestazione) {
        voci.append_child("w:tblHeader");
    }
    const bool ultima = riga + 1 == tabella.righe.size();
    PostoCella posto{0, intestazione || (tabella.insieme && !ultima), stile};
    for (const CellaRelazione& cella : tabella.righe[riga]) {
        riempiCella(nodo.append_child("w:tc"), tabella, cella, posto);
        posto.colonna += static_cast<std::size_t>(cella.colonne);
    }
    for (; posto.colonna < tabella.colonne.size(); ++posto.colonna) {
        riempiCella(nodo.append_child("w:tc"), tabella, CellaRelazione{{}}, posto);
    }
}

void sequenza(pugi::xml_node paragrafo, const std::string& etichetta) {
    aggiungiCorsa(paragrafo, etichetta + " ");
    pugi::xml_node campo = figlio(paragrafo, "w:fldSimple", "w:instr", fmt::format(" SEQ {} \\* ARABIC ", etichetta));
    aggiungiCorsa(campo, "1");
}

pugi::xml_node cornice(pugi::xml_node corsa, const ImmagineRelazione& immagine, const Disegno& disegno) {
    const std::string larghezza = std::to_string(disegno.larghezza);
    const std::string altezza = std::to_string(disegno.altezza);
    pugi::xml_node dentro = corsa.append_child("w:drawing").append_child("wp:inline");
    imposta(dentro, "xmlns:wp", spazioPagina);
    for (const char* distanza : {"distT", "distB", "distL", "distR"}) {
        imposta(dentro, distanza, "0");
    }
    imposta(figlio(dentro, "wp:extent", "cx", larghezza), "cy", altezza);
    pugi::xml_node nome = figlio(dentro, "wp:docPr", "id", std::to_string(disegno.id));
    imposta(nome, "name", fmt::format("Immagine {}", disegno.id));
    imposta(nome, "descr", testoAmmesso(immagine.testoAlternativo));
    pugi::xml_node blocchi =
        figlio(dentro.append_child("wp:cNvGraphicFramePr"), "a:graphicFrameLocks", "xmlns:a", spazioDisegno);
    imposta(blocchi, "noChangeAspect", "1");
    pugi::xml_node grafica = figlio(dentro, "a:graphic", "xmlns:a", spazioDisegno);
    return figlio(grafica, "a:graphicData", "uri", spazioImmagine);
}

void punto(pugi::xml_node nodo, const char* nome, const std::array<const char*, 2>& attributi,
           const std::array<std::int64_t, 2>& valori) {
    pugi::xml_node voce = figlio(nodo, nome, attributi[0], std::to_string(valori[0]));
    imposta(voce, attributi[1], std::to_string(valori[1]));
}

}  // namespace

std::string Stili::trova(std::string_view nome, std::string_view genere) const {
    if (nome.empty()) {
        return {};
    }
    for (const pugi::xml_node stile : radice_.children("w:style")) {
        const bool suo = ugualiSenzaMaiuscole(valore(stile, "w:styleId"), nome) ||
                         ugualiSenzaMaiuscole(valore(stile.child("w:name"), "w:val"), nome);
        if (suo && valore(stile, "w:type") == genere) {
            return std::string(valore(stile, "w:styleId"));
        }
    }
    return {};
}

std::optional<Punti> puntiPng(std::string_view png) {
    constexpr std::string_view firma = "\x89PNG\r\n\x1A\n";
    constexpr std::size_t testa = 24;  // signature, length, name and the two sizes of the first block
    constexpr std::size_t coda = 12;   // the last block
    if (png.size() < testa + coda || png.substr(0, firma.size()) != firma || png.substr(12, 4) != "IHDR" ||
        png.substr(png.size() - 8, 4) != "IEND") {
        return std::nullopt;
    }
    const auto intero = [&](std::size_t da) {
        std::uint32_t letto = 0;
        for (std::size_t i = da; i < da + 4; ++i) {
            letto = letto << 8U | static_cast<unsigned char>(png[i]);
        }
        return letto;
    };
    const Punti punti{intero(16), intero(20)};
    return punti.larghezza == 0 || punti.altezza == 0 ? std::nullopt : std::optional(punti);
}

Disegno misureDisegno(const ImmagineRelazione& immagine) {
    const std::optional<Punti> punti = puntiPng(immagine.png);
    if (!punti) {
        rifiuta("L'immagine non è un file PNG");
    }
    const double altezza =
        immagine.altezzaMm == 0.0 ? immagine.larghezzaMm * punti->altezza / punti->larghezza : immagine.altezzaMm;
    if (!misuraSana(immagine.larghezzaMm) || !misuraSana(altezza)) {
        rifiuta("Le misure dell'immagine non sono valide");
    }
    Disegno disegno;
    disegno.larghezza = std::llround(immagine.larghezzaMm * unitaPerMm);
    disegno.altezza = std::llround(altezza * unitaPerMm);
    return disegno;
}

void controllaTabella(const TabellaRelazione& tabella) {
    if (tabella.colonne.empty() || tabella.colonne.size() > massimeColonne || tabella.righe.empty()) {
        rifiuta("La tabella non ha righe o un numero di colonne da 1 a 63");
    }
    for (const ColonnaRelazione& colonna : tabella.colonne) {
        if (!misuraSana(colonna.larghezzaMm)) {
            rifiuta("La larghezza di una colonna della tabella non è valida");
        }
    }
    for (const auto& riga : tabella.righe) {
        std::size_t colonne = 0;
        for (const CellaRelazione& cella : riga) {
            const bool sana = cella.colonne >= 1 && cella.colonne <= static_cast<int>(massimeColonne);
            colonne += sana ? static_cast<std::size_t>(cella.colonne) : massimeColonne + 1;
        }
        if (colonne > tabella.colonne.size()) {
            rifiuta("Una riga della tabella è più larga delle sue colonne");
        }
    }
}

void riempiParagrafo(pugi::xml_node paragrafo, const ParagrafoRelazione& dati, const Stili& stili) {
    pugi::xml_node come = impostazioni(paragrafo, stili.trova(dati.stile, "paragraph"));
    if (dati.conSeguente) {
        come.append_child("w:keepNext");
    }
    if (dati.nuovaPagina) {
        come.append_child("w:pageBreakBefore");
    }
    const std::string testo = testoAmmesso(dati.testo);
    const bool conNumero = !dati.etichetta.empty();
    if (conNumero) {
        sequenza(paragrafo, dati.etichetta);
    }
    if (!testo.empty()) {
        aggiungiCorsa(paragrafo, conNumero ? ". " + testo : testo);
    }
}

void riempiTabella(pugi::xml_node nodo, const TabellaRelazione& tabella, const Stili& stili) {
    testata(nodo, tabella, stili);
    const std::string testo = stili.trova(tabella.stileTesto, "paragraph");
    const std::string intestazione = stili.trova(tabella.stileIntestazione, "paragraph");
    for (std::size_t riga = 0; riga < tabella.righe.size(); ++riga) {
        riempiRiga(nodo.append_child("w:tr"), tabella, riga, riga < tabella.righeIntestazione ? intestazione : testo);
    }
}

void riempiImmagine(pugi::xml_node paragrafo, const ImmagineRelazione& immagine, const Disegno& disegno,
                    const Stili& stili) {
    pugi::xml_node come = impostazioni(paragrafo, stili.trova(immagine.stile, "paragraph"));
    if (immagine.conSeguente) {
        come.append_child("w:keepNext");
    }
    figlio(come, "w:jc", "w:val", "center");
    pugi::xml_node dati = cornice(paragrafo.append_child("w:r"), immagine, disegno);
    pugi::xml_node figura = figlio(dati, "pic:pic", "xmlns:pic", spazioImmagine);
    pugi::xml_node nomi = figura.append_child("pic:nvPicPr");
    imposta(figlio(nomi, "pic:cNvPr", "id", std::to_string(disegno.id)), "name",
            fmt::format("Immagine {}", disegno.id));
    nomi.append_child("pic:cNvPicPr");
    pugi::xml_node riempimento = figura.append_child("pic:blipFill");
    pugi::xml_node fonte = figlio(riempimento, "a:blip", "xmlns:r", spazioRelazioni);
    imposta(fonte, "r:embed", disegno.relazione);
    riempimento.append_child("a:stretch").append_child("a:fillRect");
    pugi::xml_node forma = figura.append_child("pic:spPr");
    pugi::xml_node posto = forma.append_child("a:xfrm");
    punto(posto, "a:off", {"x", "y"}, {0, 0});
    punto(posto, "a:ext", {"cx", "cy"}, {disegno.larghezza, disegno.altezza});
    figlio(forma, "a:prstGeom", "prst", "rect").append_child("a:avLst");
}

}  // namespace kelvo::ooxml

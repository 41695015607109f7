#include "reports/segnalibri.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "reports/struttura.h"
#include "reports/tabelle.h"

namespace kelvo::ooxml {

namespace {

/// The nodes from below `radice` down to `nodo`.
std::vector<pugi::xml_node> cammino(pugi::xml_node nodo, pugi::xml_node radice) {
    std::vector<pugi::xml_node> passi;
    for (; nodo && nodo != radice; nodo = nodo.parent()) {
        passi.insert(passi.begin(), nodo);
    }
    return passi;
}

/// Where the two ends part: the node that holds both, and its children that hold one each.
struct Bivio {
    pugi::xml_node sopra;
    pugi::xml_node primo;
    pugi::xml_node ultimo;
};

Bivio bivio(pugi::xml_node radice, const Segnalibro& segnalibro) {
    const std::vector<pugi::xml_node> a = cammino(segnalibro.inizio, radice);
    const std::vector<pugi::xml_node> b = cammino(segnalibro.fine, radice);
    std::size_t passo = 0;
    while (passo + 1 < std::min(a.size(), b.size()) && a[passo] == b[passo]) {
        ++passo;
    }
    return {a[passo].parent(), a[passo], b[passo]};
}

void togli(pugi::xml_node nodo) {
    nodo.parent().remove_child(nodo);
}

/// Removes the siblings on one side of `nodo`, less settings.
void togliFratelli(pugi::xml_node nodo, bool seguenti) {
    pugi::xml_node fratello = seguenti ? nodo.next_sibling() : nodo.previous_sibling();
    while (fratello) {
        const pugi::xml_node prossimo = seguenti ? fratello.next_sibling() : fratello.previous_sibling();
        if (!eProprieta(fratello)) {
            togli(fratello);
        }
        fratello = prossimo;
    }
}

/// The outermost node of that name between `nodo` and `sotto`, a child of the fork that holds it.
pugi::xml_node piuEsterno(pugi::xml_node nodo, pugi::xml_node sotto, std::string_view nome) {
    pugi::xml_node trovato;
    for (; nodo; nodo = nodo.parent()) {
        trovato = chiamato(nodo, nome) ? nodo : trovato;
        if (nodo == sotto) {
            break;
        }
    }
    return trovato;
}

/// Takes away what stands behind (or before) `capo` inside `ramo`, a child of the fork. Of a table on the way the rows
/// go from the one that holds `capo` on, and the table with the last of them.
void pota(pugi::xml_node capo, pugi::xml_node ramo, bool seguenti) {
    const pugi::xml_node tabella = capo == ramo ? pugi::xml_node{} : piuEsterno(capo, ramo, "w:tbl");
    const pugi::xml_node riga = tabella ? piuEsterno(capo, tabella, "w:tr") : pugi::xml_node{};
    for (pugi::xml_node nodo = riga ? riga : capo; nodo != ramo; nodo = nodo.parent()) {
        togliFratelli(nodo, seguenti);
    }
    if (riga) {
        togli(riga);
        if (!primaRiga(tabella)) {
            togli(tabella);
        }
    }
}

/// A paragraph at an edge of what was deleted: it goes if nothing is left in it. Answers what is left.
pugi::xml_node orlo(pugi::xml_node ramo) {
    if (chiamato(ramo, "w:p") && vuoto(ramo)) {
        salvaMarcatori(ramo);
        togli(ramo);
        return {};
    }
    return ramo;
}

/// What is left of the first paragraph goes on in the last one, which keeps its settings.
void unisci(pugi::xml_node primo, pugi::xml_node ultimo) {
    const pugi::xml_node davanti = ultimo.child("w:pPr");
    pugi::xml_node dopo = davanti;
    for (pugi::xml_node nodo = primo.first_child(); nodo;) {
        const pugi::xml_node prossimo = nodo.next_sibling();
        if (!eProprieta(nodo)) {
            dopo = dopo ? ultimo.insert_move_after(nodo, dopo) : ultimo.prepend_move(nodo);
        }
        nodo = prossimo;
    }
    togli(primo);
}

/// True for a paragraph whose mark ends a section and holds its settings: it is outside of what ends inside it.
bool chiudeSezione(pugi::xml_node paragrafo) {
    return static_cast<bool>(paragrafo.child("w:pPr").child("w:sectPr"));
}

void eliminaFra(pugi::xml_node primo, pugi::xml_node ultimo) {
    for (pugi::xml_node nodo = primo.next_sibling(); nodo && nodo != ultimo;) {
        const pugi::xml_node prossimo = nodo.next_sibling();
        if (!eProprieta(nodo)) {
            togli(nodo);
        }
        nodo = prossimo;
    }
}

pugi::xml_node bloccoAccanto(pugi::xml_node nodo, bool seguente) {
    do {
        nodo = seguente ? nodo.next_sibling() : nodo.previous_sibling();
    } while (nodo && (eMarcatore(nodo) || nodo.type() != pugi::node_element));
    return nodo;
}

/// Ends of one paragraph, or of a piece of it.
void eliminaNelParagrafo(const Bivio& qui, const Segnalibro& segnalibro) {
    eliminaFra(qui.primo, qui.ultimo);
    pota(segnalibro.inizio, qui.primo, true);
    pota(segnalibro.fine, qui.ultimo, false);
    pugi::xml_node paragrafo = chiamato(qui.sopra, "w:p") ? qui.sopra : antenato(qui.sopra, "w:p");
    togli(segnalibro.inizio);
    togli(segnalibro.fine);
    if (!chiudeSezione(paragrafo)) {
        orlo(paragrafo);
    }
}

/// Ends in two cells of one row: their contents go.
void eliminaCelle(const Bivio& qui) {
    for (pugi::xml_node nodo = qui.primo; nodo; nodo = nodo.next_sibling()) {
        if (chiamato(nodo, "w:tc")) {
            svuotaCella(nodo);
        }
        if (nodo == qui.ultimo) {
            break;
        }
    }
}

/// Ends in two rows of one table: the rows go.
void eliminaRighe(const Bivio& qui) {
    eliminaFra(qui.primo, qui.ultimo);
    togli(qui.primo);
    if (qui.ultimo != qui.primo) {
        togli(qui.ultimo);
    }
}

/// The paragraph that holds an end, inside `ramo`; null if it goes with the rows of a table, or if there is none.
pugi::xml_node paragrafoAllOrlo(pugi::xml_node capo, pugi::xml_node ramo) {
    const bool nudo = capo == ramo || piuEsterno(capo, ramo, "w:tbl");
    return nudo ? pugi::xml_node{} : antenato(capo, "w:p");
}

void eliminaBlocchi(const Bivio& qui, const Segnalibro& segnalibro) {
    pugi::xml_node sopra = qui.sopra;
    pugi::xml_node giunto = sopra.insert_child_after("giunto", qui.ultimo);
    eliminaFra(qui.primo, qui.ultimo);
    pugi::xml_node primo = paragrafoAllOrlo(segnalibro.inizio, qui.primo);
    pugi::xml_node ultimo = paragrafoAllOrlo(segnalibro.fine, qui.ultimo);
    pota(segnalibro.inizio, qui.primo, true);
    pota(segnalibro.fine, qui.ultimo, false);
    primo = orlo(primo);
    ultimo = chiudeSezione(ultimo) ? ultimo : orlo(ultimo);
    if (primo && ultimo && primo.parent() == ultimo.parent()) {
        unisci(primo, ultimo);
    }
    if (chiamato(bloccoAccanto(giunto, false), "w:tbl") && chiamato(bloccoAccanto(giunto, true), "w:tbl")) {
        sopra.insert_child_before("w:p", giunto);
    }
    sopra.remove_child(giunto);
}

bool inOrdine(pugi::xml_node radice, const Segnalibro& segnalibro) {
    pugi::xml_node nodo = segnalibro.inizio;
    while (nodo && nodo != segnalibro.fine) {
        nodo = successivo(nodo, radice);
    }
    return static_cast<bool>(nodo);
}

/// True if `nodo` is a paragraph or a piece of one.
bool dentroParagrafo(pugi::xml_node nodo) {
    while (nodo && !chiamato(nodo, "w:p") && !eContenitore(nodo)) {
        nodo = nodo.parent();
    }
    return chiamato(nodo, "w:p");
}

/// Fields that begin in a paragraph and do not end there, or the other way round.
bool campoATraverso(pugi::xml_node paragrafo) {
    int aperti = 0;
    for (pugi::xml_node nodo = paragrafo.first_child(); nodo; nodo = successivo(nodo, paragrafo)) {
        if (chiamato(nodo, "w:fldChar")) {
            aperti += valore(nodo, "w:fldCharType") == "begin" ? 1 : 0;
            aperti -= valore(nodo, "w:fldCharType") == "end" ? 1 : 0;
        }
    }
    return aperti != 0;
}

/// Takes the entries out of the table of contents whose headings are gone.
void togliVociOrfane(pugi::xml_node radice) {
    constexpr std::string_view segno = "_Toc";
    std::set<std::string> nomi;
    std::vector<pugi::xml_node> voci;
    for (pugi::xml_node nodo = radice.first_child(); nodo; nodo = successivo(nodo, radice)) {
        if (chiamato(nodo, "w:bookmarkStart")) {
            nomi.insert(std::string(valore(nodo, "w:name")));
        } else if (chiamato(nodo, "w:hyperlink") && valore(nodo, "w:anchor").substr(0, segno.size()) == segno) {
            voci.push_back(nodo);
        }
    }
    for (const pugi::xml_node voce : voci) {
        if (nomi.count(std::string(valore(voce, "w:anchor"))) == 0) {
            const pugi::xml_node paragrafo = voce.parent();
            const bool intero = chiamato(paragrafo, "w:p") && !campoATraverso(paragrafo);
            // Another entry in the same paragraph is a handle of its own: only the one that stands alone takes it
            // along.
            const bool sola =
                paragrafo.find_child([&](pugi::xml_node n) { return chiamato(n, "w:hyperlink") && n != voce; }).empty();
            togli(intero && sola ? paragrafo : voce);
        }
    }
}

/// Deletes the ends themselves.
void togliCapi(pugi::xml_node radice, std::string_view id) {
    for (pugi::xml_node nodo = radice.first_child(); nodo;) {
        const bool capo =
            (chiamato(nodo, "w:bookmarkStart") || chiamato(nodo, "w:bookmarkEnd")) && valore(nodo, "w:id") == id;
        const pugi::xml_node prossimo = capo ? oltre(nodo, radice) : successivo(nodo, radice);
        if (capo) {
            togli(nodo);
        }
        nodo = prossimo;
    }
}

}  // namespace

Segnalibro trovaSegnalibro(pugi::xml_node radice, std::string_view nome) {
    Segnalibro trovato;
    for (pugi::xml_node nodo = radice.first_child(); nodo; nodo = successivo(nodo, radice)) {
        if (!trovato.inizio) {
            if (chiamato(nodo, "w:bookmarkStart") && ugualiSenzaMaiuscole(valore(nodo, "w:name"), nome)) {
                trovato.inizio = nodo;
            }
        } else if (chiamato(nodo, "w:bookmarkEnd") && valore(nodo, "w:id") == valore(trovato.inizio, "w:id")) {
            trovato.fine = nodo;
            break;
        }
    }
    return trovato;
}

void eliminaSegnalibro(pugi::xml_node radice, const Segnalibro& segnalibro) {
    const std::string id(valore(segnalibro.inizio, "w:id"));
    if (segnalibro.fine && inOrdine(radice, segnalibro)) {
        const Bivio qui = bivio(radice, segnalibro);
        if (dentroParagrafo(qui.sopra)) {
            eliminaNelParagrafo(qui, segnalibro);
        } else if (chiamato(qui.sopra, "w:tr")) {
            eliminaCelle(qui);
        } else if (chiamato(qui.sopra, "w:tbl") || chiamato(qui.primo, "w:tr") || chiamato(qui.ultimo, "w:tr")) {
            eliminaRighe(qui);
        } else {
            eliminaBlocchi(qui, segnalibro);
        }
    }
    togliCapi(radice, id);
    sanaCoppie(radice);
    togliVociOrfane(radice);
    sistemaParte(radice);
}

}  // namespace kelvo::ooxml

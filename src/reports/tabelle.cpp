#include "reports/tabelle.h"

#include <array>
#include <string>
#include <vector>

#include "reports/struttura.h"
#include "reports/testo.h"

namespace kelvo::ooxml {

namespace {

/// `nodo` or the first behind it, below `sopra`, of that name; content controls and their like are gone through, cells
/// and rows are not.
pugi::xml_node prossimo(pugi::xml_node nodo, pugi::xml_node sopra, std::string_view nome) {
    while (nodo && !chiamato(nodo, nome)) {
        const std::string_view altro = nodo.name();
        const bool avvolge = altro == "w:sdt" || altro == "w:sdtContent" || altro == "w:customXml" || altro == "w:ins";
        nodo = avvolge ? successivo(nodo, sopra) : oltre(nodo, sopra);
    }
    return nodo;
}

/// True for a cell that is covered by a merged one.
bool coperta(pugi::xml_node cella) {
    for (const char* unione : {"w:vMerge", "w:hMerge"}) {
        const pugi::xml_node voce = cella.child("w:tcPr").child(unione);
        if (voce && valore(voce, "w:val") != "restart") {
            return true;
        }
    }
    return false;
}

/// The first cell from `nodo` on in its row that is not covered.
pugi::xml_node cellaDa(pugi::xml_node nodo, pugi::xml_node riga) {
    pugi::xml_node cella = prossimo(nodo, riga, "w:tc");
    while (cella && coperta(cella)) {
        cella = prossimo(oltre(cella, riga), riga, "w:tc");
    }
    return cella;
}

void togliFigli(pugi::xml_node nodo, std::initializer_list<const char*> nomi) {
    for (const char* nome : nomi) {
        while (nodo.remove_child(nome)) {
        }
    }
}

/// The format of what stood in the paragraph becomes that of its mark, so that it holds for what is written later.
void formatoAlSegno(pugi::xml_node paragrafo, pugi::xml_node formato) {
    pugi::xml_node impostazioni = paragrafo.child("w:pPr");
    if (!formato.first_child() || impostazioni.child("w:rPr")) {
        return;
    }
    if (!impostazioni) {
        impostazioni = paragrafo.prepend_child("w:pPr");
    }
    // Behind it only the settings of a section and the tracking of changes may stand.
    togliFigli(impostazioni, {"w:sectPr", "w:pPrChange"});
    impostazioni.append_copy(formato);
}

void ripulisciCella(pugi::xml_node cella) {
    togliFigli(cella.child("w:tcPr"),
               {"w:cnfStyle", "w:vMerge", "w:hMerge", "w:cellIns", "w:cellDel", "w:cellMerge", "w:tcPrChange"});
    const pugi::xml_node formato = formatoDi(cella);
    pugi::xml_document copia;
    if (formato) {
        copia.append_copy(formato);
    }
    svuotaCella(cella);
    pugi::xml_node paragrafo = cella.child("w:p");
    for (pugi::xml_node nodo = paragrafo.first_child(); nodo;) {
        const pugi::xml_node dopo = nodo.next_sibling();
        if (!chiamato(nodo, "w:pPr")) {
            paragrafo.remove_child(nodo);
        }
        nodo = dopo;
    }
    formatoAlSegno(paragrafo, copia.first_child());
    togliFigli(paragrafo.child("w:pPr"), {"w:cnfStyle"});
    paragrafo.remove_attributes();
}

/// A copy of a row behind it: its formats, nothing of its content.
pugi::xml_node copiaRiga(pugi::xml_node riga) {
    pugi::xml_node nuova = riga.parent().insert_copy_after(riga, riga);
    nuova.remove_attributes();
    togliFigli(nuova.child("w:trPr"), {"w:cnfStyle", "w:tblHeader", "w:ins", "w:del", "w:trPrChange"});
    std::vector<pugi::xml_node> celle;
    for (pugi::xml_node cella = prossimo(nuova.first_child(), nuova, "w:tc"); cella;
         cella = prossimo(oltre(cella, nuova), nuova, "w:tc")) {
        celle.push_back(cella);
    }
    for (pugi::xml_node nodo = nuova.first_child(); nodo;) {
        const pugi::xml_node dopo = nodo.next_sibling();
        if (!chiamato(nodo, "w:tc") && !eProprieta(nodo)) {
            // What wraps a cell does not come along; the cell itself does.
            for (const pugi::xml_node cella : celle) {
                if (cella.parent() != nuova && antenato(cella, nodo.name()) == nodo) {
                    nuova.insert_move_before(cella, nodo);
                }
            }
            nuova.remove_child(nodo);
        }
        nodo = dopo;
    }
    for (const pugi::xml_node cella : celle) {
        ripulisciCella(cella);
    }
    return nuova;
}

}  // namespace

pugi::xml_node primaRiga(pugi::xml_node tabella) {
    return prossimo(tabella.first_child(), tabella, "w:tr");
}

pugi::xml_node cellaSuccessiva(pugi::xml_node cella) {
    pugi::xml_node riga = antenato(cella, "w:tr");
    const pugi::xml_node tabella = antenato(riga, "w:tbl");
    if (!riga || !tabella) {
        return {};
    }
    pugi::xml_node trovata = cellaDa(oltre(cella, riga), riga);
    while (!trovata) {
        const pugi::xml_node altra = prossimo(oltre(riga, tabella), tabella, "w:tr");
        if (!altra) {
            riga = copiaRiga(riga);
            return prossimo(riga.first_child(), riga, "w:tc");
        }
        riga = altra;
        trovata = cellaDa(riga.first_child(), riga);
    }
    return trovata;
}

void svuotaCella(pugi::xml_node cella) {
    std::vector<pugi::xml_node> marcatori;
    pugi::xml_node paragrafo = cella.child("w:p");
    if (!paragrafo) {
        paragrafo = cella.append_child("w:p");
    }
    for (pugi::xml_node nodo = cella.first_child(); nodo; nodo = successivo(nodo, cella)) {
        if (eMarcatore(nodo) && nodo.parent() != cella && nodo.parent() != paragrafo) {
            marcatori.push_back(nodo);
        }
    }
    for (const pugi::xml_node marcatore : marcatori) {
        paragrafo.append_move(marcatore);
    }
    for (pugi::xml_node contenitore : {cella, paragrafo}) {
        for (pugi::xml_node nodo = contenitore.first_child(); nodo;) {
            const pugi::xml_node dopo = nodo.next_sibling();
            if (nodo != paragrafo && !eMarcatore(nodo) && !eProprieta(nodo)) {
                contenitore.remove_child(nodo);
            }
            nodo = dopo;
        }
    }
}

}  // namespace kelvo::ooxml

#include "reports/struttura.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>

#include "reports/testo.h"

namespace kelvo::ooxml {

namespace {

struct Marcatori {
    std::string_view inizio;
    std::string_view fine;
};

constexpr std::array coppieMarcatori{
    Marcatori{"w:bookmarkStart", "w:bookmarkEnd"},
    Marcatori{"w:commentRangeStart", "w:commentRangeEnd"},
    Marcatori{"w:permStart", "w:permEnd"},
    Marcatori{"w:moveFromRangeStart", "w:moveFromRangeEnd"},
    Marcatori{"w:moveToRangeStart", "w:moveToRangeEnd"},
    Marcatori{"w:customXmlInsRangeStart", "w:customXmlInsRangeEnd"},
    Marcatori{"w:customXmlDelRangeStart", "w:customXmlDelRangeEnd"},
};

/// Containers of blocks that must end in a paragraph.
constexpr std::array<std::string_view, 8> contenitori{"w:body",     "w:tc",      "w:hdr",         "w:ftr",
                                                      "w:footnote", "w:endnote", "w:txbxContent", "w:comment"};

template <std::size_t n>
bool uno(const std::array<std::string_view, n>& nomi, std::string_view nome) {
    return std::find(nomi.begin(), nomi.end(), nome) != nomi.end();
}

/// The last child that is a block.
pugi::xml_node ultimoBlocco(pugi::xml_node contenitore) {
    pugi::xml_node blocco = contenitore.last_child();
    while (blocco && (eMarcatore(blocco) || eProprieta(blocco) || blocco.type() != pugi::node_element)) {
        blocco = blocco.previous_sibling();
    }
    return blocco;
}

void sistema(pugi::xml_node nodo) {
    const pugi::xml_node ultimo = ultimoBlocco(nodo);
    if (chiamato(nodo, "w:tbl") && !ultimo) {
        salvaMarcatori(nodo);
        nodo.parent().remove_child(nodo);
    } else if (chiamato(nodo, "w:sdtContent") && !ultimo && !antenato(nodo, "w:p")) {
        pugi::xml_node controllo = nodo.parent();
        salvaMarcatori(controllo);
        controllo.parent().remove_child(controllo);
    } else if (eContenitore(nodo) && !chiamato(ultimo, "w:p")) {
        const pugi::xml_node sezione = nodo.child("w:sectPr");
        if (sezione) {
            nodo.insert_child_before("w:p", sezione);
        } else {
            nodo.append_child("w:p");
        }
    }
}

void sanaMarcatori(pugi::xml_node radice, const Marcatori& coppia) {
    std::map<std::string, std::vector<pugi::xml_node>> inizi;
    std::map<std::string, std::vector<pugi::xml_node>> fini;
    for (pugi::xml_node nodo = radice.first_child(); nodo; nodo = successivo(nodo, radice)) {
        if (chiamato(nodo, coppia.inizio)) {
            inizi[std::string(valore(nodo, "w:id"))].push_back(nodo);
        } else if (chiamato(nodo, coppia.fine)) {
            fini[std::string(valore(nodo, "w:id"))].push_back(nodo);
        }
    }
    const auto togliSoli = [](auto& questi, const auto& quelli) {
        for (auto& [id, nodi] : questi) {
            if (quelli.count(id) == 0) {
                for (pugi::xml_node nodo : nodi) {
                    nodo.parent().remove_child(nodo);
                }
            }
        }
    };
    togliSoli(inizi, fini);
    togliSoli(fini, inizi);
}

/// A field made of marks in runs, as far as it was read.
struct Campo {
    std::vector<pugi::xml_node> segni;  ///< its marks and its instruction
    std::vector<pugi::xml_node> testi;  ///< of what it shows
    std::string istruzione;
    bool mostra = false;  ///< what it shows has begun
};

/// Reads the fields below `radice`; calls `chiuso` for each that is whole. Answers the marks that belong to none.
template <class F>
std::vector<pugi::xml_node> leggiCampi(pugi::xml_node radice, const F& chiuso) {
    std::vector<Campo> aperti;
    std::vector<pugi::xml_node> spaiati;
    for (pugi::xml_node nodo = radice.first_child(); nodo; nodo = successivo(nodo, radice)) {
        const std::string_view tipo = chiamato(nodo, "w:fldChar") ? valore(nodo, "w:fldCharType") : std::string_view{};
        if (tipo == "begin") {
            aperti.push_back({{nodo}, {}, {}, false});
        } else if (!tipo.empty() && aperti.empty()) {
            spaiati.push_back(nodo);
        } else if (tipo == "separate") {
            aperti.back().segni.push_back(nodo);
            aperti.back().mostra = true;
        } else if (tipo == "end") {
            chiuso(aperti.back());
            aperti.pop_back();
        } else if (chiamato(nodo, "w:instrText") && !aperti.empty()) {
            aperti.back().segni.push_back(nodo);
            aperti.back().istruzione += nodo.text().get();
        } else if (chiamato(nodo, "w:t") && !aperti.empty() && aperti.back().mostra) {
            aperti.back().testi.push_back(nodo);
        }
    }
    for (const Campo& campo : aperti) {
        spaiati.insert(spaiati.end(), campo.segni.begin(), campo.segni.end());
    }
    return spaiati;
}

/// Label of an instruction "SEQ label"; `conta` tells whether the field just counts.
std::string etichettaSequenza(std::string_view istruzione, bool& conta) {
    std::vector<std::string> parole(1);
    for (const char c : istruzione) {
        if (c == ' ' || c == '\t') {
            parole.emplace_back();
        } else {
            parole.back() += c;
        }
    }
    std::erase(parole, std::string{});
    if (parole.size() < 2 || !ugualiSenzaMaiuscole(parole[0], "SEQ")) {
        return {};
    }
    conta = true;
    for (std::size_t i = 2; i < parole.size(); ++i) {
        const bool formato = parole[i] == "\\*" && i + 1 < parole.size();
        if (formato &&
            (ugualiSenzaMaiuscole(parole[i + 1], "ARABIC") || ugualiSenzaMaiuscole(parole[i + 1], "MERGEFORMAT"))) {
            ++i;
        } else if (parole[i] != "\\n") {
            conta = false;
        }
    }
    return parole[1];
}

/// The texts that a caption's field shows, and its label.
struct Didascalia {
    std::string etichetta;
    bool conta = false;
    std::vector<pugi::xml_node> testi;
};

std::vector<pugi::xml_node> testiDi(pugi::xml_node radice) {
    std::vector<pugi::xml_node> testi;
    for (pugi::xml_node nodo = radice.first_child(); nodo; nodo = successivo(nodo, radice)) {
        if (chiamato(nodo, "w:t")) {
            testi.push_back(nodo);
        }
    }
    return testi;
}

std::vector<Didascalia> didascalie(pugi::xml_node radice) {
    std::map<std::ptrdiff_t, Didascalia> trovate;  // by the place of their first text
    std::map<const void*, std::ptrdiff_t> posti;
    std::ptrdiff_t posto = 0;
    const auto aggiungi = [&](std::string_view istruzione, std::vector<pugi::xml_node> testi) {
        Didascalia una;
        una.etichetta = etichettaSequenza(istruzione, una.conta);
        if (!una.etichetta.empty() && !testi.empty()) {
            una.testi = std::move(testi);
            trovate[posti[una.testi.front().internal_object()]] = std::move(una);
        }
    };
    for (pugi::xml_node nodo = radice.first_child(); nodo; nodo = successivo(nodo, radice)) {
        posti[nodo.internal_object()] = posto++;
    }
    for (pugi::xml_node nodo = radice.first_child(); nodo; nodo = successivo(nodo, radice)) {
        if (chiamato(nodo, "w:fldSimple")) {
            aggiungi(valore(nodo, "w:instr"), testiDi(nodo));
        }
    }
    leggiCampi(radice, [&](Campo& campo) { aggiungi(campo.istruzione, campo.testi); });
    std::vector<Didascalia> inOrdine;
    for (auto& [dove, una] : trovate) {
        inOrdine.push_back(std::move(una));
    }
    return inOrdine;
}

}  // namespace

bool eMarcatore(pugi::xml_node nodo) {
    const std::string_view nome = nodo.name();
    return std::any_of(coppieMarcatori.begin(), coppieMarcatori.end(),
                       [&](const Marcatori& coppia) { return nome == coppia.inizio || nome == coppia.fine; });
}

bool eProprieta(pugi::xml_node nodo) {
    constexpr std::array<std::string_view, 13> nomi{
        "w:pPr",      "w:rPr",    "w:tcPr",    "w:trPr",       "w:tblPr",       "w:tblGrid",   "w:sdtPr",
        "w:sdtEndPr", "w:sectPr", "w:tblPrEx", "w:smartTagPr", "w:customXmlPr", "w:footnotePr"};
    return uno(nomi, nodo.name());
}

bool vuoto(pugi::xml_node paragrafo) {
    for (pugi::xml_node nodo = paragrafo.first_child(); nodo;) {
        const std::string_view nome = nodo.name();
        const bool tace = eMarcatore(nodo) || eProprieta(nodo) || nome == "w:proofErr";
        const bool avvolge = nome == "w:r" || nome == "w:hyperlink" || nome == "w:smartTag" || nome == "w:ins";
        const bool scritto = nome == "w:t" && *nodo.text().get() != '\0';
        if (scritto || (!tace && !avvolge && nome != "w:t" && nome != "w:lastRenderedPageBreak" &&
                        nodo.type() == pugi::node_element)) {
            return false;
        }
        nodo = tace || nome == "w:t" ? oltre(nodo, paragrafo) : successivo(nodo, paragrafo);
    }
    return true;
}

void salvaMarcatori(pugi::xml_node nodo) {
    std::vector<pugi::xml_node> dentro;
    for (pugi::xml_node n = nodo.first_child(); n; n = successivo(n, nodo)) {
        if (eMarcatore(n)) {
            dentro.push_back(n);
        }
    }
    pugi::xml_node sopra = nodo.parent();
    for (const pugi::xml_node marcatore : dentro) {
        sopra.insert_move_before(marcatore, nodo);
    }
}

bool eContenitore(pugi::xml_node nodo) {
    return uno(contenitori, nodo.name());
}

void sistemaParte(pugi::xml_node radice) {
    std::vector<pugi::xml_node> nodi;
    if (eContenitore(radice)) {
        nodi.push_back(radice);
    }
    for (pugi::xml_node nodo = radice.first_child(); nodo; nodo = successivo(nodo, radice)) {
        if (eContenitore(nodo) || chiamato(nodo, "w:tbl") || chiamato(nodo, "w:sdtContent")) {
            nodi.push_back(nodo);
        }
    }
    // From the inside out: what is left empty inside empties what is around it.
    for (auto nodo = nodi.rbegin(); nodo != nodi.rend(); ++nodo) {
        sistema(*nodo);
    }
}

void sanaCoppie(pugi::xml_node radice) {
    for (const Marcatori& coppia : coppieMarcatori) {
        sanaMarcatori(radice, coppia);
    }
    for (pugi::xml_node nodo : leggiCampi(radice, [](const Campo& /*campo*/) {})) {
        nodo.parent().remove_child(nodo);
    }
}

pugi::xml_node formatoDi(pugi::xml_node contenitore) {
    const bool paragrafo = chiamato(contenitore, "w:p");
    pugi::xml_node segno = paragrafo ? contenitore.child("w:pPr").child("w:rPr") : pugi::xml_node{};
    bool primo = paragrafo;
    for (pugi::xml_node nodo = contenitore.first_child(); nodo; nodo = successivo(nodo, contenitore)) {
        if (chiamato(nodo, "w:r")) {
            return nodo.child("w:rPr");
        }
        if (chiamato(nodo, "w:p") && !primo) {
            segno = nodo.child("w:pPr").child("w:rPr");
            primo = true;
        }
    }
    return segno;
}

void numeraDidascalie(pugi::xml_node radice) {
    const std::vector<Didascalia> tutte = didascalie(radice);
    std::set<std::string> altre;
    for (const Didascalia& una : tutte) {
        if (!una.conta) {
            altre.insert(una.etichetta);
        }
    }
    std::map<std::string, int> contate;
    for (const Didascalia& una : tutte) {
        if (altre.count(una.etichetta) != 0) {
            continue;
        }
        bool primo = true;
        for (const pugi::xml_node testo : una.testi) {
            testo.text().set(primo ? std::to_string(++contate[una.etichetta]).c_str() : "");
            primo = false;
        }
    }
}

}  // namespace kelvo::ooxml

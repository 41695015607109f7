#include "reports/testo.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "base/testo.h"

namespace kelvo::ooxml {

namespace {

/// A piece of the text of a paragraph.
struct Pezzo {
    pugi::xml_node nodo;
    std::size_t inizio = 0;  ///< in the joined text, bytes
    std::string testo;
};

// Stands in the joined text for what no found text can go over; no document holds it.
constexpr char barriera = '\x01';

/// True for what a paragraph holds without showing anything: no barrier to a text.
bool muto(std::string_view nome) {
    constexpr std::array<std::string_view, 12> nomi{
        "w:rPr",         "w:pPr",        "w:proofErr",        "w:lastRenderedPageBreak",
        "w:bookmarkEnd", "w:softHyphen", "w:bookmarkStart",   "w:commentRangeStart",
        "w:permStart",   "w:permEnd",    "w:commentRangeEnd", "w:commentReference"};
    return std::find(nomi.begin(), nomi.end(), nome) != nomi.end();
}

/// Text of a node of a run; a barrier for a field, a drawing or a value.
std::string testoDelNodo(pugi::xml_node nodo) {
    const std::string_view nome = nodo.name();
    if (nome == "w:t") {
        return nodo.attribute(segnoValore) ? std::string(1, barriera) : std::string(nodo.text().get());
    }
    if (nome == "w:tab") {
        return "\t";
    }
    if (nome == "w:br" || nome == "w:cr") {
        return "\n";
    }
    if (nome == "w:noBreakHyphen") {
        return "-";
    }
    return muto(nome) ? std::string{} : std::string(1, barriera);
}

/// The pieces of a paragraph; those of paragraphs inside it (text boxes) are left to their own.
std::vector<Pezzo> pezzi(pugi::xml_node paragrafo, std::string& unito) {
    std::vector<Pezzo> trovati;
    pugi::xml_node nodo = paragrafo.first_child();
    while (nodo) {
        const bool inCorsa = chiamato(nodo.parent(), "w:r");
        if (inCorsa) {
            std::string testo = testoDelNodo(nodo);
            if (!testo.empty()) {
                trovati.push_back({nodo, unito.size(), testo});
                unito += testo;
            }
        }
        const bool chiuso = inCorsa || chiamato(nodo, "w:pPr") || chiamato(nodo, "w:p") || chiamato(nodo, "w:del");
        nodo = chiuso ? oltre(nodo, paragrafo) : successivo(nodo, paragrafo);
    }
    return trovati;
}

struct Trovata {
    std::size_t inizio = 0;
    const Coppia* coppia = nullptr;
};

/// Where the texts stand, from left to right, none over another; the longer of two at one place.
std::vector<Trovata> trova(std::string_view unito, const std::vector<Coppia>& coppie) {
    const std::string piano = senzaMaiuscole(unito);
    std::vector<Trovata> trovate;
    std::size_t da = 0;
    for (;;) {
        Trovata prima{std::string::npos, nullptr};
        for (const Coppia& coppia : coppie) {
            const std::size_t posto = piano.find(coppia.cercato, da);
            const bool meglio = posto < prima.inizio || (posto == prima.inizio && prima.coppia != nullptr &&
                                                         coppia.cercato.size() > prima.coppia->cercato.size());
            if (posto != std::string::npos && meglio) {
                prima = {posto, &coppia};
            }
        }
        if (prima.coppia == nullptr) {
            return trovate;
        }
        trovate.push_back(prima);
        da = prima.inizio + prima.coppia->cercato.size();
    }
}

void scriviPezzo(Pezzo& pezzo, std::string testo) {
    pezzo.testo = std::move(testo);
    if (chiamato(pezzo.nodo, "w:t")) {
        pezzo.nodo.text().set(pezzo.testo.c_str());
        imposta(pezzo.nodo, "xml:space", "preserve");
    }
}

/// Puts `testo` as values behind the node `dopo` of a run; answers the last node.
pugi::xml_node inserisciValore(pugi::xml_node dopo, std::string_view testo) {
    pugi::xml_node corsa = dopo.parent();
    const auto nodo = [&](const char* nome) { return dopo = corsa.insert_child_after(nome, dopo); };
    while (!testo.empty()) {
        if (testo.front() == '\n' || testo.front() == '\t') {
            nodo(testo.front() == '\n' ? "w:br" : "w:tab");
            testo.remove_prefix(1);
            continue;
        }
        const std::size_t lungo = std::min(testo.find_first_of("\n\t"), testo.size());
        pugi::xml_node pezzo = nodo("w:t");
        imposta(pezzo, "xml:space", "preserve");
        imposta(pezzo, segnoValore, "1");
        pezzo.text().set(std::string(testo.substr(0, lungo)).c_str());
        testo.remove_prefix(lungo);
    }
    return dopo;
}

/// Replaces what stands from `inizio` to `fine` of the joined text. What stands behind it may have been replaced.
void scambia(std::vector<Pezzo>& pezzi, std::size_t inizio, std::size_t fine, std::string_view nuovo) {
    auto primo =
        std::prev(std::upper_bound(pezzi.begin(), pezzi.end(), inizio,
                                   [](std::size_t posto, const Pezzo& pezzo) { return posto < pezzo.inizio; }));
    auto ultimo = std::prev(std::upper_bound(primo, pezzi.end(), fine - 1,
                                             [](std::size_t posto, const Pezzo& p) { return posto < p.inizio; }));
    const std::string coda = ultimo->testo.substr(fine - ultimo->inizio);
    const bool stesso = primo == ultimo;
    scriviPezzo(*primo, primo->testo.substr(0, inizio - primo->inizio));
    pugi::xml_node dopo = inserisciValore(primo->nodo, nuovo);
    if (stesso && !coda.empty()) {
        dopo = dopo.parent().insert_child_after("w:t", dopo);
        imposta(dopo, "xml:space", "preserve");
        dopo.text().set(coda.c_str());
    }
    for (auto pezzo = std::next(primo); pezzo <= ultimo && pezzo != pezzi.end(); ++pezzo) {
        scriviPezzo(*pezzo, pezzo == ultimo ? coda : std::string{});
    }
    for (auto pezzo = primo; pezzo <= ultimo && pezzo != pezzi.end(); ++pezzo) {
        if (pezzo->testo.empty() && pezzo->nodo) {
            pezzo->nodo.parent().remove_child(pezzo->nodo);
            pezzo->nodo = {};
        }
    }
}

int sostituisciNelParagrafo(pugi::xml_node paragrafo, const std::vector<Coppia>& coppie) {
    std::string unito;
    std::vector<Pezzo> parti = pezzi(paragrafo, unito);
    if (unito.empty()) {
        return 0;
    }
    const std::vector<Trovata> trovate = trova(unito, coppie);
    for (auto una = trovate.rbegin(); una != trovate.rend(); ++una) {
        scambia(parti, una->inizio, una->inizio + una->coppia->cercato.size(), una->coppia->nuovo);
    }
    return static_cast<int>(trovate.size());
}

/// True for a character (by its bytes in UTF-8) that XML has no place for.
bool vietato(std::string_view carattere) {
    if (carattere.size() == 1) {
        return static_cast<unsigned char>(carattere.front()) < 0x20 && carattere != "\t" && carattere != "\n";
    }
    return carattere == "\xEF\xBF\xBE" || carattere == "\xEF\xBF\xBF";
}

}  // namespace

std::string testoAmmesso(std::string_view testo) {
    std::string righe;
    for (std::size_t i = 0; i < testo.size(); ++i) {
        const bool coppia = testo[i] == '\r' && i + 1 < testo.size() && testo[i + 1] == '\n';
        if (!coppia) {
            righe += testo[i] == '\r' ? '\n' : testo[i];
        }
    }
    std::string ammesso;
    for (const std::string& carattere : caratteri(righe)) {
        if (!vietato(carattere)) {
            ammesso += carattere;
        }
    }
    return ammesso;
}

std::string senzaMaiuscole(std::string_view testo) {
    std::string piano(testo);
    for (std::size_t i = 0; i < piano.size(); ++i) {
        const auto byte = static_cast<unsigned char>(piano[i]);
        const bool latino = i > 0 && piano[i - 1] == '\xC3' && byte >= 0x80 && byte <= 0x9E && byte != 0x97;
        if ((byte >= 'A' && byte <= 'Z') || latino) {
            piano[i] = static_cast<char>(byte + 0x20);
        }
    }
    return piano;
}

void aggiungiValore(pugi::xml_node corsa, std::string_view testo) {
    pugi::xml_node ultimo = corsa.last_child();
    const bool vuota = !ultimo;
    if (vuota) {
        ultimo = corsa.append_child("w:t");
    }
    inserisciValore(ultimo, testo);
    if (vuota) {
        corsa.remove_child(ultimo);
    }
}

pugi::xml_node aggiungiCorsa(pugi::xml_node paragrafo, std::string_view testo) {
    const pugi::xml_node corsa = paragrafo.append_child("w:r");
    aggiungiValore(corsa, testo);
    return corsa;
}

std::string testoDi(pugi::xml_node nodo) {
    std::string testo;
    for (pugi::xml_node n = nodo.first_child(); n;) {
        if (chiamato(n, "w:t")) {
            testo += n.text().get();
        } else if (chiamato(n.parent(), "w:r")) {
            const std::string pezzo = testoDelNodo(n);
            testo += pezzo == std::string(1, barriera) ? std::string{} : pezzo;
        }
        n = chiamato(n.parent(), "w:r") ? oltre(n, nodo) : successivo(n, nodo);
    }
    return testo;
}

int sostituisci(pugi::xml_node radice, const std::vector<Coppia>& coppie) {
    int quante = 0;
    for (pugi::xml_node nodo = radice.first_child(); nodo; nodo = successivo(nodo, radice)) {
        if (chiamato(nodo, "w:p")) {
            quante += sostituisciNelParagrafo(nodo, coppie);
        }
    }
    return quante;
}

void copiaFormato(pugi::xml_node corsa, pugi::xml_node da) {
    // What belongs to the mark of a paragraph, or to the tracking of changes, is no format of a run.
    constexpr std::array<std::string_view, 5> lasciati{"w:ins", "w:del", "w:moveFrom", "w:moveTo", "w:rPrChange"};
    if (!da.first_child() || corsa.child("w:rPr")) {
        return;
    }
    pugi::xml_node formato = corsa.prepend_child("w:rPr");
    for (const pugi::xml_node voce : da.children()) {
        if (std::find(lasciati.begin(), lasciati.end(), std::string_view(voce.name())) == lasciati.end()) {
            formato.append_copy(voce);
        }
    }
}

}  // namespace kelvo::ooxml

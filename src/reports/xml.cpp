#include "reports/xml.h"

#include <algorithm>

#include "base/testo.h"

namespace kelvo::ooxml {

namespace {

class ScrittoreTesto final : public pugi::xml_writer {
public:
    explicit ScrittoreTesto(std::string& testo) : testo_(testo) {}
    void write(const void* dati, std::size_t quanti) override { testo_.append(static_cast<const char*>(dati), quanti); }

private:
    std::string& testo_;
};

/// True if no node stands deeper than the limit and none is a document type.
bool strutturaSana(const pugi::xml_document& documento) {
    int profondita = 0;
    pugi::xml_node nodo = documento.first_child();
    while (nodo) {
        if (nodo.type() == pugi::node_doctype || profondita > massimaProfondita) {
            return false;
        }
        if (nodo.first_child()) {
            nodo = nodo.first_child();
            ++profondita;
            continue;
        }
        while (nodo && !nodo.next_sibling()) {
            nodo = nodo.parent();
            --profondita;
        }
        nodo = nodo.next_sibling();
    }
    return true;
}

bool largo(std::string_view dati) {
    return dati.substr(0, 2) == "\xFF\xFE" || dati.substr(0, 2) == "\xFE\xFF";
}

}  // namespace

std::string leggiXml(std::string_view dati, pugi::xml_document& documento) {
    if (dati.size() > massimoXml) {
        return "una parte è troppo grande";
    }
    if (!largo(dati) && parteValida(dati) != dati.size()) {
        return "una parte non è testo valido";
    }
    constexpr unsigned opzioni = pugi::parse_default | pugi::parse_ws_pcdata | pugi::parse_doctype;
    const auto codice = largo(dati) ? pugi::encoding_auto : pugi::encoding_utf8;
    if (!documento.load_buffer(dati.data(), dati.size(), opzioni, codice) || !documento.document_element()) {
        return "una parte non è XML corretto";
    }
    return strutturaSana(documento) ? std::string{} : "una parte ha una struttura non ammessa";
}

std::string scriviXml(const pugi::xml_document& documento) {
    std::string testo = "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n";
    ScrittoreTesto scrittore(testo);
    documento.save(scrittore, "", pugi::format_raw | pugi::format_no_declaration, pugi::encoding_utf8);
    return testo;
}

pugi::xml_node oltre(pugi::xml_node nodo, pugi::xml_node radice) {
    while (nodo && nodo != radice) {
        if (nodo.next_sibling()) {
            return nodo.next_sibling();
        }
        nodo = nodo.parent();
    }
    return {};
}

pugi::xml_node successivo(pugi::xml_node nodo, pugi::xml_node radice) {
    return nodo.first_child() ? nodo.first_child() : oltre(nodo, radice);
}

pugi::xml_node antenato(pugi::xml_node nodo, std::string_view nome) {
    pugi::xml_node sopra = nodo.parent();
    while (sopra && !chiamato(sopra, nome)) {
        sopra = sopra.parent();
    }
    return sopra;
}

void imposta(pugi::xml_node nodo, const char* attributo, std::string_view valore) {
    pugi::xml_attribute voce = nodo.attribute(attributo);
    if (!voce) {
        voce = nodo.append_attribute(attributo);
    }
    voce.set_value(std::string(valore).c_str());
}

pugi::xml_node figlio(pugi::xml_node nodo, const char* nome, const char* attributo, std::string_view valore) {
    const pugi::xml_node nuovo = nodo.append_child(nome);
    imposta(nuovo, attributo, valore);
    return nuovo;
}

bool ugualiSenzaMaiuscole(std::string_view a, std::string_view b) {
    return a.size() == b.size() && maiuscoleAscii(a) == maiuscoleAscii(b);
}

}  // namespace kelvo::ooxml

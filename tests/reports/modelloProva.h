#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "base/guasto.h"
#include "cli/processo.h"
#include "comune/cartella.h"
#include "comune/strumenti.h"
#include "reports/DocumentoRelazione.h"
#include "reports/zip.h"

namespace kelvo::prove {

inline const std::string spaziW =
    "xmlns:w=\"http://schemas.openxmlformats.org/wordprocessingml/2006/main\" "
    "xmlns:r=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships\" "
    "xmlns:v=\"urn:schemas-microsoft-com:vml\"";

/// Pieces of the text of a template. A paragraph of one run; a run; a cell, a row, a table.
inline std::string r(const std::string& testo, const std::string& formato = {}) {
    return "<w:r>" + (formato.empty() ? "" : "<w:rPr>" + formato + "</w:rPr>") + "<w:t xml:space=\"preserve\">" +
           testo + "</w:t></w:r>";
}
inline std::string par(const std::string& dentro, const std::string& come = {}) {
    return "<w:p>" + (come.empty() ? "" : "<w:pPr>" + come + "</w:pPr>") + dentro + "</w:p>";
}
inline std::string p(const std::string& testo) {
    return par(r(testo));
}
inline std::string tc(const std::string& dentro, const std::string& come = {}) {
    return "<w:tc>" + (come.empty() ? "" : "<w:tcPr>" + come + "</w:tcPr>") + dentro + "</w:tc>";
}
inline std::string tr(const std::string& celle, const std::string& come = {}) {
    return "<w:tr>" + (come.empty() ? "" : "<w:trPr>" + come + "</w:trPr>") + celle + "</w:tr>";
}
inline std::string tbl(int colonne, const std::string& righe) {
    std::string griglia;
    for (int i = 0; i < colonne; ++i) {
        griglia += "<w:gridCol w:w=\"1000\"/>";
    }
    return "<w:tbl><w:tblPr><w:tblW w:w=\"0\" w:type=\"auto\"/></w:tblPr><w:tblGrid>" + griglia + "</w:tblGrid>" +
           righe + "</w:tbl>";
}
inline std::string inizio(const std::string& nome, int id) {
    return "<w:bookmarkStart w:id=\"" + std::to_string(id) + "\" w:name=\"" + nome + "\"/>";
}
inline std::string fine(int id) {
    return "<w:bookmarkEnd w:id=\"" + std::to_string(id) + "\"/>";
}
/// A bookmark that spans nothing.
inline std::string segno(const std::string& nome, int id) {
    return inizio(nome, id) + fine(id);
}
inline std::string casella(const std::string& blocchi) {
    return "<w:r><w:pict><v:shape style=\"width:100pt;height:50pt\"><v:textbox><w:txbxContent>" + blocchi +
           "</w:txbxContent></v:textbox></v:shape></w:pict></w:r>";
}

inline const std::string sezione = "<w:sectPr><w:pgSz w:w=\"11906\" w:h=\"16838\"/></w:sectPr>";
inline const std::string stiliW =
    "<w:styles " + spaziW +
    "><w:style w:type=\"paragraph\" w:styleId=\"Didascalia\"><w:name w:val=\"caption\"/></w:style>"
    "<w:style w:type=\"table\" w:styleId=\"TabKelvo\"><w:name w:val=\"Tabella Kelvo\"/></w:style></w:styles>";

inline std::string documentoXml(const std::string& corpo) {
    return "<?xml version=\"1.0\"?><w:document " + spaziW + "><w:body>" + corpo + sezione + "</w:body></w:document>";
}

/// The parts of a template with this body, a header, a footer, footnotes and styles.
inline std::vector<ooxml::Voce> parti(const std::string& corpo, const std::string& intestazione = "<w:p/>",
                                      const std::string& piede = "<w:p/>", const std::string& nota = "<w:p/>") {
    const std::string word = "application/vnd.openxmlformats-officedocument.wordprocessingml.";
    const std::string tipo = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
    const std::string relazioni =
        "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">";
    const auto voce = [&](const std::string& parte, const std::string& quale) {
        return "<Override PartName=\"/word/" + parte + ".xml\" ContentType=\"" + word + quale + "+xml\"/>";
    };
    const auto legame = [&](const std::string& id, const std::string& quale, const std::string& dove) {
        return "<Relationship Id=\"" + id + "\" Type=\"" + tipo + quale + "\" Target=\"" + dove + "\"/>";
    };
    return {
        {"[Content_Types].xml",
         "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
         "<Default Extension=\"rels\" ContentType=\"application/vnd.openxmlformats-package.relationships+xml\"/>"
         "<Default Extension=\"xml\" ContentType=\"application/xml\"/>" +
             voce("document", "template.main") + voce("header1", "header") + voce("footer1", "footer") +
             voce("footnotes", "footnotes") + voce("styles", "styles") + "</Types>"},
        {"_rels/.rels", relazioni + legame("rId1", "officeDocument", "word/document.xml") + "</Relationships>"},
        {"word/_rels/document.xml.rels", relazioni + legame("rId1", "header", "header1.xml") +
                                             legame("rId2", "footer", "/word/footer1.xml") +
                                             legame("rId3", "footnotes", "./footnotes.xml") +
                                             legame("rId4", "styles", "styles.xml") + "</Relationships>"},
        {"word/document.xml", documentoXml(corpo)},
        {"word/header1.xml", "<w:hdr " + spaziW + ">" + intestazione + "</w:hdr>"},
        {"word/footer1.xml", "<w:ftr " + spaziW + ">" + piede + "</w:ftr>"},
        {"word/footnotes.xml",
         "<w:footnotes " + spaziW + "><w:footnote w:id=\"2\">" + nota + "</w:footnote></w:footnotes>"},
        {"word/styles.xml", stiliW},
    };
}

inline std::string archivio(const std::vector<ooxml::Voce>& voci) {
    std::string dati;
    EXPECT_EQ(ooxml::scriviArchivio(voci, dati), "");
    return dati;
}

inline std::unique_ptr<DocumentoRelazione> documento(const std::vector<ooxml::Voce>& voci) {
    return documentoDaContenuto(archivio(voci), "prova.dotx");
}
inline std::unique_ptr<DocumentoRelazione> conCorpo(const std::string& corpo) {
    return documento(parti(corpo));
}

/// The schemas of the format, where this machine has them.
inline std::string schemi() {
    const char* altrove = std::getenv("KELVO_SCHEMI_OOXML");
    return altrove != nullptr ? altrove : std::string(KELVO_SORGENTI "/../shared/ooxml-xsd");
}

inline bool haSchemi() {
    return std::filesystem::exists(schemi() + "/wml.xsd") && conStrumento("xmllint", "libxml2-utils");
}

/// A document as it was written, read back without the code that wrote it.
class Letto {
public:
    explicit Letto(DocumentoRelazione& documento) : Letto(documento.Contenuto()) {}
    explicit Letto(const std::string& dati) {
        EXPECT_EQ(ooxml::leggiArchivio(dati, voci_), "");
        EXPECT_TRUE(xml_.load_string(parte("word/document.xml").c_str(), opzioni));
    }

    std::string parte(const std::string& nome) const {
        for (const ooxml::Voce& voce : voci_) {
            if (voce.nome == nome) {
                return voce.dati;
            }
        }
        return {};
    }
    const std::vector<ooxml::Voce>& voci() const { return voci_; }
    pugi::xml_node corpo() const { return xml_.document_element().child("w:body"); }
    int conta(const std::string& nome) const {
        return static_cast<int>(xml_.select_nodes(("//" + nome).c_str()).size());
    }

    static std::string testo(pugi::xml_node nodo) {
        std::string unito;
        pugi::xpath_node_set trovati = nodo.select_nodes(".//w:t | .//w:br | .//w:tab[parent::w:r]");
        trovati.sort();
        for (const auto& trovato : trovati) {
            const std::string nome = trovato.node().name();
            unito += nome == "w:t" ? trovato.node().text().get() : nome == "w:br" ? "\n" : "\t";
        }
        return unito;
    }
    /// All text of a part of the folder "word".
    std::string testoParte(const std::string& nome) const {
        pugi::xml_document xml;
        EXPECT_TRUE(xml.load_string(parte("word/" + nome + ".xml").c_str(), opzioni));
        return testo(xml);
    }
    /// The blocks of the body: the text of a paragraph, "[rows]" for a table.
    std::vector<std::string> blocchi() const {
        std::vector<std::string> trovati;
        for (const pugi::xml_node nodo : corpo().children()) {
            const std::string nome = nodo.name();
            if (nome == "w:p") {
                trovati.push_back(testo(nodo));
            } else if (nome == "w:tbl") {
                trovati.push_back("[" + std::to_string(nodo.select_nodes("w:tr").size()) + "]");
            }
        }
        return trovati;
    }
    /// The texts of the cells of a table of the body.
    std::vector<std::vector<std::string>> tabella(std::size_t quale = 0) const {
        std::vector<std::vector<std::string>> righe;
        const auto tutte = corpo().select_nodes("w:tbl");
        for (const auto& riga : tutte[quale].node().select_nodes("w:tr")) {
            righe.emplace_back();
            for (const auto& cella : riga.node().select_nodes("w:tc")) {
                righe.back().push_back(testo(cella.node()));
            }
        }
        return righe;
    }

    /// What the schemas find wrong, empty for nothing or where there are none.
    std::string errori() const {
        if (!haSchemi()) {
            return {};
        }
        const CartellaTemporanea cartella;
        std::vector<std::string> comando{"/usr/bin/xmllint", "--nonet", "--noout", "--schema", schemi() + "/wml.xsd"};
        for (const ooxml::Voce& voce : voci_) {
            const bool testo = voce.nome.rfind("word/", 0) == 0 && voce.nome.find("/_rels/") == std::string::npos &&
                               voce.nome.find(".xml") != std::string::npos;
            if (testo) {
                comando.push_back(cartella.file(voce.nome.substr(5)));
                scriviContenuto(comando.back(), voce.dati);
            }
        }
        const Esito esito = esegui(comando);
        return esito.codice == 0 ? std::string{} : esito.errori;
    }

private:
    static constexpr unsigned opzioni = pugi::parse_default | pugi::parse_ws_pcdata;
    std::vector<ooxml::Voce> voci_;
    pugi::xml_document xml_;
};

/// The words of the fault that `fa` raises.
template <class F>
std::string paroleDi(const F& fa, NumeroGuasto numero = NumeroGuasto::chiamataNonValida) {
    try {
        fa();
    } catch (const Guasto& guasto) {
        EXPECT_EQ(guasto.numero(), numero);
        return guasto.descrizione();
    }
    return "nessun guasto";
}

}  // namespace kelvo::prove

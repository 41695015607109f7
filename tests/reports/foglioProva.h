#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <clocale>
#include <map>
#include <pugixml.hpp>
#include <string>
#include <vector>

#include "base/numeri.h"
#include "progettoProva.h"

namespace kelvo::prove {

/// A cell of a workbook as it stands in the file.
struct CellaLetta {
    std::string testo;    ///< what it shows as text; a number as it is written
    bool numero = false;  ///< it holds a number
    std::string formula;
    std::string formato;  ///< pattern of a number
    std::string sfondo;   ///< "FF006200"; empty for none
    std::string inchiostro;
    bool grassetto = false;

    double valore() const { return std::stod(testoConPunto()); }

private:
    /// Read with the decimal mark of the moment.
    std::string testoConPunto() const {
        std::string locale = testo;
        const char segno = *std::localeconv()->decimal_point;
        for (char& c : locale) {
            c = c == '.' ? segno : c;
        }
        return locale;
    }
};

/// A workbook read back without the code that wrote it.
class FoglioLetto {
public:
    explicit FoglioLetto(const std::string& dati) {
        EXPECT_EQ(ooxml::leggiArchivio(dati, voci_), "");
        const pugi::xml_document condivisi = documento("xl/sharedStrings.xml");
        for (const auto& si : condivisi.select_nodes("//si")) {
            std::string unito;
            for (const auto& t : si.node().select_nodes(".//t")) {
                unito += t.node().text().get();
            }
            condivisi_.push_back(unito);
        }
        leggiStili();
        std::map<std::string, std::string> parti;
        const pugi::xml_document relazioni = documento("xl/_rels/workbook.xml.rels");
        for (const auto& r : relazioni.select_nodes("//Relationship")) {
            parti[r.node().attribute("Id").value()] = r.node().attribute("Target").value();
        }
        const pugi::xml_document cartella = documento("xl/workbook.xml");
        for (const auto& f : cartella.select_nodes("//sheet")) {
            nomi_.emplace_back(f.node().attribute("name").value());
            parti_.push_back("xl/" + parti[f.node().attribute("r:id").value()]);
        }
    }

    const std::vector<std::string>& nomi() const { return nomi_; }
    const std::vector<ooxml::Voce>& voci() const { return voci_; }
    std::string parte(const std::string& nome) const {
        for (const ooxml::Voce& voce : voci_) {
            if (voce.nome == nome) {
                return voce.dati;
            }
        }
        return {};
    }
    pugi::xml_document documento(const std::string& nome) const {
        pugi::xml_document xml;
        EXPECT_TRUE(xml.load_string(parte(nome).c_str(), pugi::parse_default | pugi::parse_ws_pcdata)) << nome;
        return xml;
    }
    pugi::xml_document foglio(const std::string& nome) const { return documento(parteFoglio(nome)); }
    /// The cells of a sheet by their names, "A1".
    std::map<std::string, CellaLetta> celle(const std::string& nome) const {
        std::map<std::string, CellaLetta> trovate;
        const pugi::xml_document righe = foglio(nome);
        for (const auto& c : righe.select_nodes("//sheetData/row/c")) {
            trovate[c.node().attribute("r").value()] = cella(c.node());
        }
        return trovate;
    }
    /// The part that a relation of a part of this kind leads to, whole names; empty for none.
    std::string legata(const std::string& parte, const std::string& genere) const {
        const std::size_t barra = parte.rfind('/');
        const std::string rel = parte.substr(0, barra) + "/_rels" + parte.substr(barra) + ".rels";
        if (this->parte(rel).empty()) {
            return {};
        }
        const pugi::xml_document legami = documento(rel);
        for (const auto& r : legami.select_nodes("//Relationship")) {
            const std::string tipo = r.node().attribute("Type").value();
            if (tipo.substr(tipo.rfind('/') + 1) == genere) {
                return "xl/" + std::string(r.node().attribute("Target").value()).substr(3);
            }
        }
        return {};
    }
    /// The charts that stand on a sheet, in their order.
    std::vector<pugi::xml_document> grafici(const std::string& nome) const {
        std::vector<pugi::xml_document> trovati;
        const std::string disegno = legata(parteFoglio(nome), "drawing");
        if (disegno.empty()) {
            return trovati;
        }
        std::map<std::string, std::string> parti;
        const std::string rel = "xl/drawings/_rels" + disegno.substr(disegno.rfind('/')) + ".rels";
        const pugi::xml_document legami = documento(rel);
        for (const auto& r : legami.select_nodes("//Relationship")) {
            parti[r.node().attribute("Id").value()] = "xl/" + std::string(r.node().attribute("Target").value() + 3);
        }
        const pugi::xml_document figure = documento(disegno);
        for (const auto& c : figure.select_nodes("//c:chart")) {
            trovati.push_back(documento(parti[c.node().attribute("r:id").value()]));
        }
        return trovati;
    }
    std::string parteFoglio(const std::string& nome) const {
        for (std::size_t i = 0; i < nomi_.size(); ++i) {
            if (nomi_[i] == nome) {
                return parti_[i];
            }
        }
        ADD_FAILURE() << "manca il foglio " << nome;
        return {};
    }

    /// What the schemas find wrong in its parts, empty for nothing or where there are none.
    std::string errori() const {
        if (!std::filesystem::exists(schemi() + "/sml.xsd") || !std::filesystem::exists("/usr/bin/xmllint")) {
            return {};
        }
        const CartellaTemporanea cartella;
        std::map<std::string, std::vector<std::string>> perSchema;
        for (const ooxml::Voce& voce : voci_) {
            const std::string schema = schemaDi(voce.nome);
            if (!schema.empty()) {
                std::string nome = voce.nome;
                std::replace(nome.begin(), nome.end(), '/', '-');
                perSchema[schema].push_back(cartella.file(nome));
                scriviContenuto(perSchema[schema].back(), voce.dati);
            }
        }
        std::string trovati;
        for (const auto& [schema, file] : perSchema) {
            std::vector<std::string> comando{"/usr/bin/xmllint", "--nonet", "--noout", "--schema",
                                             schemi() + "/" + schema};
            comando.insert(comando.end(), file.begin(), file.end());
            const Esito esito = esegui(comando);
            trovati += esito.codice == 0 ? std::string{} : esito.errori;
        }
        return trovati;
    }
    /// The schema of a part; empty for one that none covers.
    static std::string schemaDi(const std::string& parte) {
        const auto sotto = [&](const char* cartella) { return parte.rfind(cartella, 0) == 0; };
        if (parte == "[Content_Types].xml") {
            return "opc-contentTypes.xsd";
        }
        if (parte.size() > 5 && parte.substr(parte.size() - 5) == ".rels") {
            return "opc-relationships.xsd";
        }
        if (sotto("xl/charts/")) {
            return "dml-chart.xsd";
        }
        if (sotto("xl/drawings/")) {
            return "dml-spreadsheetDrawing.xsd";
        }
        if (sotto("xl/theme/")) {
            return "dml-main.xsd";
        }
        if (parte == "docProps/app.xml") {
            return "shared-documentPropertiesExtended.xsd";
        }
        return sotto("xl/") ? "sml.xsd" : "";
    }

private:
    struct Stile {
        std::string formato;
        std::string sfondo;
        std::string inchiostro;
        bool grassetto = false;
    };

    void leggiStili() {
        const pugi::xml_document xml = documento("xl/styles.xml");
        std::map<std::string, std::string> formati{{"0", ""}, {"1", "0"}, {"2", "0.00"}, {"10", "0.00%"}};
        for (const auto& f : xml.select_nodes("//numFmts/numFmt")) {
            formati[f.node().attribute("numFmtId").value()] = f.node().attribute("formatCode").value();
        }
        const auto fondi = xml.select_nodes("//fills/fill");
        const auto tipi = xml.select_nodes("//fonts/font");
        for (const auto& xf : xml.select_nodes("//cellXfs/xf")) {
            const pugi::xml_node fondo = fondi[xf.node().attribute("fillId").as_uint()].node();
            const pugi::xml_node tipo = tipi[xf.node().attribute("fontId").as_uint()].node();
            stili_.push_back({formati[xf.node().attribute("numFmtId").value()],
                              fondo.select_node("patternFill/fgColor").node().attribute("rgb").value(),
                              tipo.child("color").attribute("rgb").value(), bool(tipo.child("b"))});
        }
    }

    CellaLetta cella(pugi::xml_node c) const {
        const Stile& stile = stili_.at(c.attribute("s").as_uint());
        CellaLetta letta{.testo = c.child("v").text().get(),
                         .numero = false,
                         .formula = c.child("f").text().get(),
                         .formato = stile.formato,
                         .sfondo = stile.sfondo,
                         .inchiostro = stile.inchiostro,
                         .grassetto = stile.grassetto};
        if (std::string(c.attribute("t").value()) == "s") {
            letta.testo = condivisi_.at(c.child("v").text().as_uint());
        } else {
            letta.numero = !letta.testo.empty();
        }
        return letta;
    }

    std::vector<ooxml::Voce> voci_;
    std::vector<std::string> condivisi_;
    std::vector<Stile> stili_;
    std::vector<std::string> nomi_;
    std::vector<std::string> parti_;
};

}  // namespace kelvo::prove

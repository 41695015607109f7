#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "base/guasto.h"
#include "reports/DocumentoRelazione.h"
#include "reports/zip.h"

namespace {

using kelvo::ooxml::Voce;

[[noreturn]] void finisci(const std::string& perche) {
    std::fputs((perche + "\n").c_str(), stderr);
    std::abort();
}

constexpr std::string_view relazioni =
    "<Relationships xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\"><Relationship Id=\"rId1\" "
    "Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/officeDocument\" "
    "Target=\"word/document.xml\"/></Relationships>";
constexpr std::string_view tipi =
    "<Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\"><Override "
    "PartName=\"/word/document.xml\" ContentType=\"application/vnd.openxmlformats-officedocument.wordprocessingml."
    "template.main+xml\"/></Types>";

/// The text as the body of a template; bytes that are an archive stay as they are.
std::string comeModello(std::string_view testo) {
    if (testo.substr(0, 2) == "PK") {
        return std::string(testo);
    }
    std::string dati;
    const std::vector<Voce> voci{{"[Content_Types].xml", std::string(tipi)},
                                 {"_rels/.rels", std::string(relazioni)},
                                 {"word/document.xml", std::string(testo)}};
    if (!kelvo::ooxml::scriviArchivio(voci, dati).empty()) {
        finisci("an archive that cannot be written");
    }
    return dati;
}

template <class F>
void tenta(const F& fa) {
    try {
        fa();
    } catch (const kelvo::Guasto& guasto) {
        if (guasto.descrizione().empty()) {
            finisci("a fault without words");
        }
    }
}

void provaTutto(kelvo::DocumentoRelazione& doc) {
    kelvo::TabellaRelazione tabella;
    tabella.colonne = {{20.0}, {30.0}};
    tabella.righe = {{{"a"}, {"b"}}, {{"c"}}};
    tenta([&] { doc.Sostituisci("%a%", "uno\ndue\t%b%"); });
    for (const char* nome : {"T", "M", "S"}) {
        tenta([&] { doc.SelezionaSegnalibro(nome); });
        for (int i = 0; i < 8; ++i) {
            tenta([&] { doc.CellaSuccessiva(); });
            tenta([&] { doc.ScriviTesto("cella"); });
        }
        tenta([&] { doc.InserisciTabella(tabella); });
        tenta([&] { doc.InserisciParagrafo({"testo", "", true, false, "Figura"}); });
    }
    for (const char* nome : {"S", "R", "T"}) {
        tenta([&] { doc.SelezionaSegnalibro(nome); });
        tenta([&] { doc.EliminaSelezione(); });
    }
    tenta([&] { doc.SelezionaFine(); });
    tenta([&] { doc.InserisciTabella(tabella); });
    constexpr std::array<std::string_view, 2> elenco{"%a%", "%b%"};
    tenta([&] { doc.Sbianca(elenco); });
}

}  // namespace

/// Any bytes as a template: a refusal has words; what is taken bears every operation, and what is written is taken
/// again.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t lunghezza) {
    const std::string modello = comeModello({reinterpret_cast<const char*>(dati), lunghezza});
    try {
        const auto doc = kelvo::documentoDaContenuto(modello, "m");
        provaTutto(*doc);
        const std::string scritto = doc->Contenuto();
        try {
            kelvo::documentoDaContenuto(scritto, "q");
        } catch (const kelvo::Guasto& guasto) {
            finisci("what was written is refused: " + guasto.descrizione());
        }
    } catch (const kelvo::Guasto& guasto) {
        if (guasto.descrizione().empty()) {
            finisci("a fault without words");
        }
    }
    return 0;
}

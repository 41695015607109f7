#include "cad/documentoDxf.h"

#include <fmt/format.h>

#include "cad/scrittoreDxf.h"

namespace kelvo::dxf {

namespace {

/// The file in the making, section by section.
class File {
public:
    explicit File(const Documento& documento) : documento_(documento) {
        for (const Quotatura& quota : documento.quote) {
            if (disegnabile(quota) && misurabile(quota)) {
                quote_.push_back({quota, fmt::format("*D{}", quote_.size() + 1), corpo_.nuova()});
            }
        }
    }

    std::string testo() {
        classi();
        scriviTavole(corpo_, documento_, quote_);
        blocchi();
        entita();
        scriviOggetti(corpo_, documento_);
        corpo_.gruppo(0, "EOF");
        // Behind the rest, since it tells the first handle that is free.
        return intestazione() + corpo_.testo();
    }

private:
    std::string intestazione() const {
        Scrittore f;
        const pianta::Riquadro& e = documento_.estensione;
        f.apri("HEADER");
        const auto variabile = [&](const char* nome, int codice, auto valore) {
            f.gruppo(9, nome);
            f.gruppo(codice, valore);
        };
        variabile("$ACADVER", 1, "AC1021");
        variabile("$DWGCODEPAGE", 3, "ANSI_1252");
        f.gruppo(9, "$INSBASE");
        f.punto(10, {});
        f.gruppo(9, "$EXTMIN");
        f.punto(10, e.minimo);
        f.gruppo(9, "$EXTMAX");
        f.punto(10, e.massimo);
        f.gruppo(9, "$LIMMIN");
        f.punto2d(10, e.minimo);
        f.gruppo(9, "$LIMMAX");
        f.punto2d(10, e.massimo);
        variabile("$LTSCALE", 40, 1.0);
        variabile("$TEXTSIZE", 40, documento_.stile.altezzaTesto);
        variabile("$TEXTSTYLE", 7, stileTesto);
        variabile("$CLAYER", 8, "0");
        variabile("$CELTYPE", 6, "ByLayer");
        variabile("$CECOLOR", 62, 256);
        variabile("$DIMSTYLE", 2, stileQuote);
        variabile("$LUNITS", 70, 2);
        variabile("$LUPREC", 70, 2);
        variabile("$AUNITS", 70, 0);
        variabile("$AUPREC", 70, 2);
        variabile("$MEASUREMENT", 70, 1);
        variabile("$INSUNITS", 70, 6);
        variabile("$LWDISPLAY", 290, 1);
        variabile("$HANDSEED", 5, corpo_.prossima());
        f.chiudi();
        return f.testo();
    }

    void classi() {
        corpo_.apri("CLASSES");
        struct Classe {
            const char* dxf;
            const char* nome;
        };
        for (const Classe& c : {Classe{"ACDBDICTIONARYWDFLT", "AcDbDictionaryWithDefault"},
                                Classe{"ACDBPLACEHOLDER", "AcDbPlaceHolder"}, Classe{"LAYOUT", "AcDbLayout"}}) {
            corpo_.gruppo(0, "CLASS");
            corpo_.gruppo(1, c.dxf);
            corpo_.gruppo(2, c.nome);
            corpo_.gruppo(3, "ObjectDBX Classes");
            corpo_.gruppo(90, 0);
            corpo_.gruppo(91, 0);
            corpo_.gruppo(280, 0);
            corpo_.gruppo(281, 0);
        }
        corpo_.chiudi();
    }

    void blocchi() {
        corpo_.apri("BLOCKS");
        blocco("*Model_Space", Maniglia::bloccoModello, {}, 0);
        blocco("*Paper_Space", Maniglia::bloccoCarta, {}, 0);
        for (const QuotaScritta& q : quote_) {
            constexpr int anonimo = 1;
            blocco(q.blocco, q.record, q.quota.figura, anonimo);
        }
        corpo_.chiudi();
    }

    void blocco(const std::string& nome, Maniglia record, const std::vector<Entita>& figura, int modo) {
        const auto capo = [&](const char* tipo, const char* classe) {
            corpo_.gruppo(0, tipo);
            corpo_.gruppo(5, corpo_.nuova());
            corpo_.gruppo(330, record);
            corpo_.gruppo(100, "AcDbEntity");
            if (record == Maniglia::bloccoCarta) {
                corpo_.gruppo(67, 1);
            }
            corpo_.gruppo(8, "0");
            corpo_.gruppo(100, classe);
        };
        capo("BLOCK", "AcDbBlockBegin");
        corpo_.gruppo(2, nome);
        corpo_.gruppo(70, modo);
        corpo_.punto(10, {});
        corpo_.gruppo(3, nome);
        corpo_.gruppo(1, "");
        for (const Entita& e : figura) {
            if (disegnabile(e)) {
                scriviEntita(corpo_, e, record);
            }
        }
        capo("ENDBLK", "AcDbBlockEnd");
    }

    void entita() {
        corpo_.apri("ENTITIES");
        for (const Entita& e : documento_.entita) {
            if (disegnabile(e)) {
                scriviEntita(corpo_, e, Maniglia::bloccoModello);
            }
        }
        for (const QuotaScritta& q : quote_) {
            scriviQuota(corpo_, q.quota, q.blocco, Maniglia::bloccoModello);
        }
        for (const Quotatura& quota : documento_.quote) {
            if (disegnabile(quota) && !misurabile(quota)) {
                scritte(quota);
            }
        }
        corpo_.chiudi();
    }

    /// What is left of a dimension without extent.
    void scritte(const Quotatura& quota) {
        for (const Entita& e : quota.figura) {
            if (std::holds_alternative<Scritta>(e) && disegnabile(e)) {
                scriviEntita(corpo_, e, Maniglia::bloccoModello);
            }
        }
    }

    const Documento& documento_;
    Scrittore corpo_;
    std::vector<QuotaScritta> quote_;
};

}  // namespace

std::string testoDxf(const Documento& documento) {
    return File(documento).testo();
}

}  // namespace kelvo::dxf

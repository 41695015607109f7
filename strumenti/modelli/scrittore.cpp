#include "modelli/scrittore.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <pugixml.hpp>
#include <sstream>
#include <stdexcept>

namespace kelvo::modelli {

namespace {

constexpr double ventesimiPerMm = 1440.0 / 25.4;
constexpr const char* testataFondo = "006200";
constexpr const char* nomiFondo = "E4ECBE";
constexpr const char* inchiostro = "202020";
/// Type of the mark of a paragraph in a cell that is left empty, half points: its row is a line, no gap.
constexpr const char* corpoSegno = "2";
constexpr const char* stileNota = "Nota";

using Nodo = pugi::xml_node;

std::string ventesimi(double mm) {
    return std::to_string(std::lround(mm * ventesimiPerMm));
}

Nodo con(Nodo nodo, const char* attributo, const std::string& valore) {
    nodo.append_attribute(attributo) = valore.c_str();
    return nodo;
}

Nodo figlio(Nodo nodo, const char* nome, const std::string& valore) {
    return con(nodo.append_child(nome), "w:val", valore);
}

/// How a run looks beyond its style.
struct Aspetto {
    bool forte = false;
    bool corsivo = false;
    const char* posto = nullptr;  ///< "subscript", "superscript"
    std::string colore{};
    double corpo = 0.0;  ///< points; 0: of the style
};

void scriviAspetto(Nodo corsa, const Aspetto& aspetto) {
    if (!aspetto.forte && !aspetto.corsivo && aspetto.posto == nullptr && aspetto.colore.empty() &&
        aspetto.corpo == 0.0) {
        return;
    }
    Nodo formato = corsa.append_child("w:rPr");
    if (aspetto.forte) {
        formato.append_child("w:b");
    }
    if (aspetto.corsivo) {
        formato.append_child("w:i");
    }
    if (!aspetto.colore.empty()) {
        figlio(formato, "w:color", aspetto.colore);
    }
    if (aspetto.corpo > 0.0) {
        const std::string mezzi = std::to_string(std::lround(aspetto.corpo * 2.0));
        figlio(formato, "w:sz", mezzi);
        figlio(formato, "w:szCs", mezzi);
    }
    if (aspetto.posto != nullptr) {
        figlio(formato, "w:vertAlign", aspetto.posto);
    }
}

/// Runs of a text: "**" switches strong, "~~" slanted, "_{x}" and "^{x}" set below and above, "\n" breaks the line.
class Corse {
public:
    Corse(Nodo paragrafo, const Aspetto& aspetto) : paragrafo_(paragrafo), aspetto_(aspetto) {}

    void scrivi(const std::string& testo) {
        for (std::size_t i = 0; i < testo.size();) {
            const std::string due = testo.substr(i, 2);
            if (due == "**" || due == "~~" || due == "\\n") {
                metti();
                due == "**"   ? void(aspetto_.forte = !aspetto_.forte)
                : due == "~~" ? void(aspetto_.corsivo = !aspetto_.corsivo)
                              : void(paragrafo_.append_child("w:r").append_child("w:br"));
                i += 2;
            } else if (due == "_{" || due == "^{") {
                metti();
                const auto fine = testo.find('}', i);
                if (fine == std::string::npos) {
                    throw std::runtime_error("manca una graffa in: " + testo);
                }
                aspetto_.posto = due == "_{" ? "subscript" : "superscript";
                in_ = testo.substr(i + 2, fine - i - 2);
                metti();
                aspetto_.posto = nullptr;
                i = fine + 1;
            } else {
                in_ += testo[i++];
            }
        }
        metti();
    }

private:
    void metti() {
        if (in_.empty()) {
            return;
        }
        Nodo corsa = paragrafo_.append_child("w:r");
        scriviAspetto(corsa, aspetto_);
        Nodo testo = con(corsa.append_child("w:t"), "xml:space", "preserve");
        testo.text().set(in_.c_str());
        in_.clear();
    }

    Nodo paragrafo_;
    Aspetto aspetto_;
    std::string in_;
};

class Scrittore {
public:
    explicit Scrittore(const std::vector<Blocco>& blocchi) : blocchi_(blocchi) {
        Nodo radice = xml_.append_child("w:document");
        con(radice, "xmlns:w", "http://schemas.openxmlformats.org/wordprocessingml/2006/main");
        con(radice, "xmlns:r", "http://schemas.openxmlformats.org/officeDocument/2006/relationships");
        corpo_ = radice.append_child("w:body");
    }

    std::string scrivi() {
        for (std::size_t i = 0; i < blocchi_.size(); ++i) {
            annotata_ = i + 1 < blocchi_.size() && blocchi_[i + 1].genere == Blocco::Genere::paragrafo &&
                        blocchi_[i + 1].nome == stileNota;
            scriviBlocco(blocchi_[i]);
        }
        sezione();
        std::ostringstream testo;
        xml_.save(testo, "", pugi::format_raw, pugi::encoding_utf8);
        return testo.str();
    }

private:
    void scriviBlocco(const Blocco& blocco) {
        switch (blocco.genere) {
            case Blocco::Genere::paragrafo:
                Corse(paragrafo(blocco.nome), {}).scrivi(blocco.testo);
                break;
            case Blocco::Genere::titolo:
                titolo(blocco);
                break;
            case Blocco::Genere::tabella:
                tabella(blocco.tabella);
                break;
            case Blocco::Genere::punto:
                segnalibro(paragrafo({}), blocco.nome);
                break;
            case Blocco::Genere::apre:
                aperti_.push_back(inizio(corpo_, blocco.nome));
                break;
            case Blocco::Genere::chiude:
                fine(corpo_, aperti_.back());
                aperti_.pop_back();
                break;
            case Blocco::Genere::pagina:
                nuovaPagina_ = true;
                break;
            case Blocco::Genere::indice:
                indice();
                break;
        }
    }

    std::string inizio(Nodo nodo, const std::string& nome) {
        std::string id = std::to_string(++ultimoId_);
        con(con(nodo.append_child("w:bookmarkStart"), "w:id", id), "w:name", nome);
        return id;
    }
    static void fine(Nodo nodo, const std::string& id) { con(nodo.append_child("w:bookmarkEnd"), "w:id", id); }
    void segnalibro(Nodo nodo, const std::string& nome) { fine(nodo, inizio(nodo, nome)); }

    Nodo paragrafo(const std::string& stile, bool conSeguente = false) {
        Nodo nodo = corpo_.append_child("w:p");
        if (!stile.empty() || nuovaPagina_ || conSeguente) {
            Nodo come = nodo.append_child("w:pPr");
            if (!stile.empty()) {
                figlio(come, "w:pStyle", stile);
            }
            if (conSeguente) {
                come.append_child("w:keepNext");
            }
            if (nuovaPagina_) {
                come.append_child("w:pageBreakBefore");
            }
        }
        nuovaPagina_ = false;
        return nodo;
    }

    static std::string ancora(int titolo) { return fmt::format("_Toc{:08}", titolo); }

    void titolo(const Blocco& blocco) {
        Nodo nodo = paragrafo(fmt::format("Titolo{}", blocco.livello));
        const std::string id = inizio(nodo, ancora(++titoli_));
        Corse(nodo, {}).scrivi(blocco.testo);
        fine(nodo, id);
    }

    static void campo(Nodo paragrafo, const char* genere) {
        con(paragrafo.append_child("w:r").append_child("w:fldChar"), "w:fldCharType", genere);
    }

    /// The headings with their numbers, without pages: those are known to the program alone that lays the text out.
    void indice() {
        Nodo testa = paragrafo("OrloIndice");
        campo(testa, "begin");
        Nodo comando = con(testa.append_child("w:r").append_child("w:instrText"), "xml:space", "preserve");
        comando.text().set(" TOC \\o \"1-2\" \\n \\h ");
        campo(testa, "separate");
        int n = 0;
        for (const Blocco& blocco : blocchi_) {
            if (blocco.genere != Blocco::Genere::titolo) {
                continue;
            }
            Nodo voce = paragrafo(fmt::format("VoceIndice{}", blocco.livello));
            Nodo legame = con(con(voce.append_child("w:hyperlink"), "w:anchor", ancora(++n)), "w:history", "1");
            Corse(legame, {}).scrivi(blocco.testo);
        }
        campo(paragrafo("OrloIndice"), "end");
    }

    void didascalia(const std::string& testo) {
        Nodo nodo = paragrafo("Didascalia", true);
        Corse(nodo, {}).scrivi("Tabella ");
        Nodo conta = con(nodo.append_child("w:fldSimple"), "w:instr", " SEQ Tabella \\* ARABIC ");
        Corse(conta, {}).scrivi(std::to_string(++tabelle_));
        Corse(nodo, {}).scrivi(". " + testo);
    }

    void tabella(const TabellaModello& dati) {
        if (!dati.didascalia.empty()) {
            didascalia(dati.didascalia);
        }
        double totale = 0.0;
        for (const double mm : dati.colonneMm) {
            totale += mm;
        }
        Nodo nodo = corpo_.append_child("w:tbl");
        Nodo come = nodo.append_child("w:tblPr");
        figlio(come, "w:tblStyle", dati.stile);
        con(con(come.append_child("w:tblW"), "w:w", ventesimi(totale)), "w:type", "dxa");
        con(come.append_child("w:tblLayout"), "w:type", "fixed");
        figlio(come, "w:tblLook", "0420");
        Nodo griglia = nodo.append_child("w:tblGrid");
        for (const double mm : dati.colonneMm) {
            con(griglia.append_child("w:gridCol"), "w:w", ventesimi(mm));
        }
        std::size_t ultimaTestata = 0;
        for (std::size_t r = 0; r < dati.righe.size(); ++r) {
            ultimaTestata = dati.righe[r].genere == TabellaModello::Genere::testata ? r : ultimaTestata;
        }
        for (std::size_t r = 0; r < dati.righe.size(); ++r) {
            Nodo ultima = riga(nodo, dati, r, totale);
            if (r == ultimaTestata && !dati.segnalibro.empty()) {
                segnalibro(ultima.child("w:p"), dati.segnalibro);
            }
        }
        // Two tables never touch, and what follows stands apart. A note on the table stays with it.
        paragrafo("DopoTabella", annotata_);
    }

    /// Answers the last cell of the row.
    Nodo riga(Nodo tabella, const TabellaModello& dati, std::size_t quale, double totale) const {
        const TabellaModello::Riga& riga = dati.righe[quale];
        Nodo nodo = tabella.append_child("w:tr");
        Nodo come = nodo.append_child("w:trPr");
        come.append_child("w:cantSplit");
        if (riga.altezzaMm > 0.0) {
            con(figlio(come, "w:trHeight", ventesimi(riga.altezzaMm)), "w:hRule", "atLeast");
        }
        if (riga.genere == TabellaModello::Genere::testata) {
            come.append_child("w:tblHeader");
        }
        const std::size_t colonne = dati.colonneMm.size();
        const bool unita = riga.genere == TabellaModello::Genere::unita || (riga.celle.size() == 1 && colonne > 1);
        Nodo cella;
        for (std::size_t c = 0; c < (unita ? 1 : colonne); ++c) {
            cella = nodo.append_child("w:tc");
            Nodo voci = cella.append_child("w:tcPr");
            con(con(voci.append_child("w:tcW"), "w:w", ventesimi(unita ? totale : dati.colonneMm[c])), "w:type", "dxa");
            if (unita) {
                figlio(voci, "w:gridSpan", std::to_string(colonne));
            }
            const std::string fondo = fondoDi(dati, riga, c, unita);
            if (!fondo.empty()) {
                con(con(con(voci.append_child("w:shd"), "w:val", "clear"), "w:color", "auto"), "w:fill", fondo);
            }
            figlio(voci, "w:vAlign", riga.altezzaMm > 0.0 ? "top" : "center");
            contenuto(cella, dati, quale, c, unita);
        }
        return cella;
    }

    static std::string fondoDi(const TabellaModello& dati, const TabellaModello::Riga& riga, std::size_t colonna,
                               bool unita) {
        if (riga.genere == TabellaModello::Genere::testata) {
            return testataFondo;
        }
        const bool nomi = dati.stile == "TabellaKelvo" && (colonna == 0 || unita);
        return nomi ? nomiFondo : std::string{};
    }

    void contenuto(Nodo cella, const TabellaModello& dati, std::size_t quale, std::size_t colonna, bool unita) const {
        const TabellaModello::Riga& riga = dati.righe[quale];
        const bool testata = riga.genere == TabellaModello::Genere::testata;
        const bool vuota = riga.genere == TabellaModello::Genere::vuota || riga.genere == TabellaModello::Genere::unita;
        Nodo paragrafo = cella.append_child("w:p");
        Nodo come = paragrafo.append_child("w:pPr");
        figlio(come, "w:pStyle", testata ? "IntestazioneTabella" : "TestoTabella");
        if (quale + 1 < dati.righe.size() || annotata_) {
            come.append_child("w:keepNext");  // these tables are short: each stays on one page
        }
        const char lettera = unita ? 's' : dati.allineamento[colonna];
        figlio(come, "w:jc", lettera == 'c' ? "center" : lettera == 'd' ? "right" : "left");
        if (vuota) {
            Nodo segno = come.append_child("w:rPr");
            figlio(segno, "w:sz", corpoSegno);
            figlio(segno, "w:szCs", corpoSegno);
        }
        Aspetto aspetto;
        aspetto.corpo = dati.corpo;
        aspetto.colore = testata ? "FFFFFF" : inchiostro;
        aspetto.forte = dati.stile != "TabellaKelvo" && colonna == 0 && !unita && dati.colonneMm.size() > 1;
        if (vuota) {
            // The look of what is to be written here.
            scriviAspetto(paragrafo.append_child("w:r"), aspetto);
        } else {
            Corse(paragrafo, aspetto).scrivi(riga.celle[colonna]);
        }
    }

    void sezione() {
        Nodo nodo = corpo_.append_child("w:sectPr");
        con(con(nodo.append_child("w:headerReference"), "w:type", "default"), "r:id", "rIdTesta");
        con(con(nodo.append_child("w:footerReference"), "w:type", "default"), "r:id", "rIdPiede");
        con(con(nodo.append_child("w:pgSz"), "w:w", "11906"), "w:h", "16838");
        Nodo margini = nodo.append_child("w:pgMar");
        for (const auto& [lato, mm] : {std::pair{"w:top", 25.0},
                                       {"w:right", 20.0},
                                       {"w:bottom", 20.0},
                                       {"w:left", 20.0},
                                       {"w:header", 12.0},
                                       {"w:footer", 10.0},
                                       {"w:gutter", 0.0}}) {
            con(margini, lato, ventesimi(mm));
        }
        nodo.append_child("w:titlePg");
    }

    const std::vector<Blocco>& blocchi_;
    pugi::xml_document xml_;
    Nodo corpo_;
    std::vector<std::string> aperti_;
    int ultimoId_ = 0;
    int titoli_ = 0;
    int tabelle_ = 0;
    bool nuovaPagina_ = false;
    bool annotata_ = false;  ///< a note follows the block at hand
};

}  // namespace

std::string scriviDocumento(const std::vector<Blocco>& blocchi) {
    return Scrittore(blocchi).scrivi();
}

}  // namespace kelvo::modelli

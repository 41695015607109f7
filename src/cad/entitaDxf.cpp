#include <algorithm>
#include <cmath>
#include <optional>

#include "base/testo.h"
#include "cad/scrittoreDxf.h"
#include "pianta/curve.h"

namespace kelvo::dxf {

namespace {

/// Two vertices nearer than this are one, m.
constexpr double coincidenti = 1e-7;

bool numero(Punto p) {
    return std::isfinite(p.x) && std::isfinite(p.y);
}

/// The way without vertices that stand on the one before; nothing if a coordinate is no number or no piece is left.
std::optional<Tracciato> pulito(const Tracciato& tracciato, bool chiuso) {
    Tracciato via;
    for (const pianta::Vertice& v : tracciato) {
        if (!numero(v.p) || !std::isfinite(v.bombatura)) {
            return std::nullopt;
        }
        if (!via.empty() && norma(v.p - via.back().p) <= coincidenti) {
            via.back().bombatura = v.bombatura;
        } else {
            via.push_back(v);
        }
    }
    while (chiuso && via.size() > 1 && norma(via.front().p - via.back().p) <= coincidenti) {
        via.pop_back();
    }
    if (via.size() < 2) {
        return std::nullopt;
    }
    return via;
}

struct Circonferenza {
    Punto centro{};
    double raggio = 0.0;
};

/// The circle that a closed way of two half circles is.
std::optional<Circonferenza> cerchioIntero(const Tracciato& via, bool chiusa) {
    constexpr double mezzo = 1e-12;
    const bool intero = chiusa && via.size() == 2 && std::abs(std::abs(via[0].bombatura) - 1) < mezzo &&
                        std::abs(via[0].bombatura - via[1].bombatura) < mezzo;
    if (!intero) {
        return std::nullopt;
    }
    return Circonferenza{(via[0].p + via[1].p) * 0.5, norma(via[1].p - via[0].p) / 2};
}

void testa(Scrittore& file, std::string_view tipo, Maniglia padrone, std::string_view layer) {
    file.gruppo(0, tipo);
    file.gruppo(5, file.nuova());
    file.gruppo(330, padrone);
    file.gruppo(100, "AcDbEntity");
    file.gruppo(8, layer);
}

void vertici(Scrittore& file, const Tracciato& via, bool sempre) {
    for (const pianta::Vertice& v : via) {
        file.punto2d(10, v.p);
        if (sempre || v.bombatura != 0) {
            file.gruppo(42, v.bombatura, 12);
        }
    }
}

void scrivi(Scrittore& file, const Polilinea& p, Maniglia padrone) {
    const Tracciato via = *pulito(p.tracciato, p.chiusa);
    if (const auto cerchio = cerchioIntero(via, p.chiusa)) {
        testa(file, "CIRCLE", padrone, p.layer);
        file.gruppo(100, "AcDbCircle");
        file.punto(10, cerchio->centro);
        file.gruppo(40, cerchio->raggio);
        return;
    }
    if (!p.chiusa && via.size() == 2 && via[0].bombatura == 0) {
        testa(file, "LINE", padrone, p.layer);
        file.gruppo(100, "AcDbLine");
        file.punto(10, via[0].p);
        file.punto(11, via[1].p);
        return;
    }
    testa(file, "LWPOLYLINE", padrone, p.layer);
    file.gruppo(100, "AcDbPolyline");
    file.gruppo(90, static_cast<int>(via.size()));
    // Dashes run on through the vertices.
    constexpr int chiusa = 1;
    constexpr int continua = 128;
    file.gruppo(70, continua + (p.chiusa ? chiusa : 0));
    vertici(file, via, false);
}

void scrivi(Scrittore& file, const Campitura& c, Maniglia padrone) {
    testa(file, "HATCH", padrone, c.layer);
    file.gruppo(100, "AcDbHatch");
    file.punto(10, {});
    file.punto2d(210, {});
    file.gruppo(230, 1.0);
    file.gruppo(2, "SOLID");
    file.gruppo(70, 1);  // filled
    file.gruppo(71, 0);  // on its own, tied to no border
    file.gruppo(91, static_cast<int>(c.contorni.size()));
    for (std::size_t k = 0; k < c.contorni.size(); ++k) {
        const Tracciato via = *pulito(c.contorni[k], true);
        constexpr int polilinea = 2;
        constexpr int esterno = 1;
        constexpr int piuEsterno = 16;
        file.gruppo(92, polilinea + (k == 0 ? esterno : piuEsterno));
        file.gruppo(72, 1);  // with bulges
        file.gruppo(73, 1);  // closed
        file.gruppo(93, static_cast<int>(via.size()));
        vertici(file, via, true);
        file.gruppo(97, 0);
    }
    file.gruppo(75, 0);  // every second border is a hole
    file.gruppo(76, 1);  // a pattern of the program's
    file.gruppo(98, 0);
}

void scrivi(Scrittore& file, const Triangolo& t, Maniglia padrone) {
    testa(file, "SOLID", padrone, t.layer);
    file.gruppo(100, "AcDbTrace");
    file.punto(10, t.a);
    file.punto(11, t.b);
    file.punto(12, t.c);
    file.punto(13, t.c);
}

void scrivi(Scrittore& file, const PuntoQuotato& p, Maniglia padrone) {
    testa(file, "POINT", padrone, layerPunti);
    file.gruppo(100, "AcDbPoint");
    file.punto(10, p.p);
}

void scrivi(Scrittore& file, const Scritta& s, Maniglia padrone) {
    testa(file, "TEXT", padrone, s.layer);
    file.gruppo(100, "AcDbText");
    file.punto(10, s.punto);
    file.gruppo(40, s.altezza);
    file.gruppo(1, testoSemplice(s.testo));
    if (s.rotazione != 0) {
        file.gruppo(50, s.rotazione);
    }
    file.gruppo(7, stileTesto);
    file.gruppo(72, s.allineamento == Allineamento::sinistra ? 0 : s.allineamento == Allineamento::centro ? 1 : 2);
    file.punto(11, s.punto);
    file.gruppo(100, "AcDbText");
    file.gruppo(73, 2);  // on half the height
}

bool resta(const Polilinea& p) {
    return pulito(p.tracciato, p.chiusa).has_value();
}

bool resta(const Campitura& c) {
    constexpr double niente = 1e-6;
    double piena = 0;
    for (std::size_t k = 0; k < c.contorni.size(); ++k) {
        const auto via = pulito(c.contorni[k], true);
        if (!via) {
            return false;
        }
        const double sua = std::abs(pianta::superficie(*via));
        piena += k == 0 ? sua : -sua;
    }
    return piena > niente;
}

bool resta(const Triangolo& t) {
    return numero(t.a) && numero(t.b) && numero(t.c);
}

bool resta(const PuntoQuotato& p) {
    return numero(p.p);
}

bool resta(const Scritta& s) {
    return numero(s.punto) && std::isfinite(s.altezza) && s.altezza > 0 && !testoSemplice(s.testo).empty();
}

void scriviPropria(Scrittore& file, const Quotatura& q) {
    using enum Quotatura::Tipo;
    switch (q.tipo) {
        case ruotata:
        case allineata:
            file.gruppo(100, "AcDbAlignedDimension");
            file.punto(13, q.primo);
            file.punto(14, q.secondo);
            if (q.tipo == ruotata) {
                file.gruppo(50, q.direzione);
                file.gruppo(100, "AcDbRotatedDimension");
            }
            break;
        case diametro:
        case raggio:
            file.gruppo(100, q.tipo == raggio ? "AcDbRadialDimension" : "AcDbDiametricDimension");
            file.punto(15, q.primo);
            file.gruppo(40, 0.0);
            break;
        case angolo:
            file.gruppo(100, "AcDb3PointAngularDimension");
            file.punto(13, q.primo);
            file.punto(14, q.secondo);
            file.punto(15, q.vertice);
            break;
    }
}

/// Of this dimension alone: its text is level, between the lines and beyond them.
void testoOrizzontale(Scrittore& file) {
    file.gruppo(1001, "ACAD");
    file.gruppo(1000, "DSTYLE");
    file.gruppo(1002, "{");
    for (const int variabile : {73, 74}) {
        file.gruppo(1070, variabile);
        file.gruppo(1070, 1);
    }
    file.gruppo(1002, "}");
}

}  // namespace

std::string testoSemplice(std::string_view testo) {
    const std::string valido = utf8Valido(testo);
    std::string semplice;
    for (std::size_t i = 0; i < valido.size(); ++i) {
        const char c = valido[i];
        const std::string_view resto = std::string_view{valido}.substr(i);
        if (static_cast<unsigned char>(c) < ' ' || c == '\x7f') {
            semplice += ' ';
        } else if (c == '^') {
            semplice += "^ ";  // how the format writes it: else the next letter is a control character
        } else if (resto.substr(0, 2) == "%%") {
            semplice += "% ";  // two of them begin a code
        } else if (resto.substr(0, 3) == "\\U+" || resto.substr(0, 3) == "\\M+") {
            semplice += "\\ ";  // begins the code of a letter
        } else {
            semplice += c;
        }
    }
    // Readers take at most this much in one line.
    constexpr std::size_t massimo = 240;
    return accorciato(rifila(semplice), massimo);
}

bool disegnabile(const Entita& entita) {
    return std::visit([](const auto& e) { return resta(e); }, entita);
}

void scriviEntita(Scrittore& file, const Entita& entita, Maniglia padrone) {
    std::visit([&](const auto& e) { scrivi(file, e, padrone); }, entita);
}

bool disegnabile(const Quotatura& q) {
    return numero(q.definizione) && numero(q.primo) && numero(q.secondo) && numero(q.vertice) && numero(q.testoA) &&
           std::isfinite(q.misura) && std::isfinite(q.direzione) && std::isfinite(q.rotazioneTesto);
}

bool misurabile(const Quotatura& q) {
    using enum Quotatura::Tipo;
    switch (q.tipo) {
        case ruotata:
            return std::abs(pianta::scalare(q.secondo - q.primo, pianta::polare(1.0, pianta::radianti(q.direzione)))) >
                   coincidenti;
        case allineata:
            return norma(q.secondo - q.primo) > coincidenti;
        case diametro:
        case raggio:
            return norma(q.primo - q.definizione) > coincidenti;
        case angolo:
            break;
    }
    constexpr double stessoVerso = 1e-6;
    const Punto primo = q.primo - q.vertice;
    const Punto secondo = q.secondo - q.vertice;
    return norma(primo) > coincidenti && norma(secondo) > coincidenti &&
           norma(pianta::versore(primo) - pianta::versore(secondo)) > stessoVerso;
}

void scriviQuota(Scrittore& file, const Quotatura& q, const std::string& blocco, Maniglia padrone) {
    testa(file, "DIMENSION", padrone, q.layer);
    file.gruppo(100, "AcDbDimension");
    file.gruppo(2, blocco);
    file.punto(10, q.definizione);
    file.punto(11, q.testoA);
    constexpr int bloccoProprio = 32;
    constexpr int testoPosato = 128;
    file.gruppo(70, static_cast<int>(q.tipo) + bloccoProprio + testoPosato);
    file.gruppo(71, 5);  // the middle of the text
    file.gruppo(42, q.tipo == Quotatura::Tipo::angolo ? pianta::radianti(q.misura) : q.misura, 12);
    file.gruppo(1, q.testo);
    if (q.rotazioneTesto != 0) {
        file.gruppo(53, q.rotazioneTesto);
    }
    file.gruppo(3, stileQuote);
    scriviPropria(file, q);
    if (q.tipo == Quotatura::Tipo::angolo) {
        testoOrizzontale(file);
    }
}

}  // namespace kelvo::dxf

#include "base/Tabella.h"

#include <fmt/format.h>

#include <algorithm>

#include "base/chiusura.h"
#include "base/guasto.h"
#include "base/testo.h"

namespace kelvo {

namespace {

constexpr std::size_t margine = 2;

}  // namespace

Tabella::Tabella(int righe, int colonne) : righe_(righe), colonne_(colonne) {
    if (righe < 0 || colonne < 0) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo,
                     fmt::format("tabella di {} righe e {} colonne", righe, colonne));
    }
    larghezze.resize(static_cast<std::size_t>(colonne));
    celle_.resize(static_cast<std::size_t>(righe) * static_cast<std::size_t>(colonne));
}

std::size_t Tabella::posizione(int riga, int colonna) const {
    if (riga < 0 || riga >= righe_ || colonna < 0 || colonna >= colonne_) {
        throw Guasto(NumeroGuasto::indiceFuoriIntervallo,
                     fmt::format("cella {}, {} di una tabella {} x {}", riga, colonna, righe_, colonne_));
    }
    return static_cast<std::size_t>(riga) * static_cast<std::size_t>(colonne_) + static_cast<std::size_t>(colonna);
}

Cella& Tabella::cella(int riga, int colonna) {
    return celle_[posizione(riga, colonna)];
}

const Cella& Tabella::cella(int riga, int colonna) const {
    return celle_[posizione(riga, colonna)];
}

std::vector<std::size_t> larghezzeTesto(const Tabella& tabella) {
    std::vector<std::size_t> larghezze(static_cast<std::size_t>(tabella.colonne()), margine);
    for (int r = 0; r < tabella.righe(); ++r) {
        for (int c = 0; c < tabella.colonne(); ++c) {
            std::size_t& larghezza = larghezze[static_cast<std::size_t>(c)];
            larghezza = std::max(larghezza, lunghezza(tabella.testo(r, c)) + margine);
        }
    }
    return larghezze;
}

std::string testoTabella(const Tabella& tabella, const Impaginazione& impaginazione) {
    const std::vector<std::size_t> larghezze = larghezzeTesto(tabella);
    std::string uscita;
    for (int r = 0; r < tabella.righe(); ++r) {
        if (impaginazione.rigaVuotaPrima && impaginazione.rigaVuotaPrima(tabella, r)) {
            uscita.append(fineRiga);
        }
        for (int c = 0; c < tabella.colonne(); ++c) {
            const std::string& testo = tabella.testo(r, c);
            const std::string vuoto(larghezze[static_cast<std::size_t>(c)] - lunghezza(testo), ' ');
            if (impaginazione.allineamento == Allineamento::destra) {
                uscita.append(vuoto).append(testo);
            } else {
                uscita.append(testo).append(vuoto);
            }
            uscita.push_back('\t');
        }
        uscita.append(fineRiga);
    }
    return uscita;
}

std::string righeDiChiusura(DataOra momento, std::string_view nomeFile) {
    return chiusuraEsportazione(testoDataOra(momento), nomeFile);
}

}  // namespace kelvo

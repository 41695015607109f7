#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "app/FileIni.h"
#include "base/guasto.h"

namespace {

[[noreturn]] void finisci(const char* perche) {
    std::fputs(perche, stderr);
    std::fputc('\n', stderr);
    std::abort();
}

/// The input up to its first 0 byte, which is dropped with it.
std::string_view prossimo(std::string_view& testo) {
    const auto fine = testo.find('\0');
    const std::string_view pezzo = testo.substr(0, fine);
    testo.remove_prefix(fine == std::string_view::npos ? testo.size() : fine + 1);
    return pezzo;
}

std::string senzaRighe(std::string_view valore) {
    std::string testo{valore};
    for (char& c : testo) {
        c = c == '\r' || c == '\n' ? ' ' : c;
    }
    return testo;
}

}  // namespace

/// Section, key, value and the text of a configuration file, parted by 0 bytes: the text is kept to the byte, a value
/// written is the value read, a second write of it changes nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t lunghezza) {
    std::string_view resto(reinterpret_cast<const char*>(dati), lunghezza);
    const std::string_view sezione = prossimo(resto);
    const std::string_view chiave = prossimo(resto);
    const std::string_view valore = prossimo(resto);
    kelvo::FileIni ini(resto);
    if (ini.testo() != resto) {
        finisci("the text is not kept");
    }
    const std::optional<std::string> prima = ini.leggi("LAY_OUT", "CustomPanel");
    try {
        ini.scrivi(sezione, chiave, valore);
    } catch (const kelvo::Guasto&) {
        if (ini.testo() != resto) {
            finisci("a refused name has changed the text");
        }
        return 0;
    }
    const std::string scritto = ini.testo();
    kelvo::FileIni riletto(scritto);
    if (riletto.leggi(sezione, chiave) != senzaRighe(valore)) {
        finisci("the value written is not the value read");
    }
    if (prima && sezione != "LAY_OUT" && chiave.size() != std::string_view("CustomPanel").size() &&
        riletto.leggi("LAY_OUT", "CustomPanel") != prima) {
        finisci("a foreign key has changed");
    }
    riletto.scrivi(sezione, chiave, valore);
    if (riletto.testo() != scritto) {
        finisci("a second write has changed the text");
    }
    return 0;
}

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "base/guasto.h"
#include "model/Rotonda.h"

namespace {

[[noreturn]] void finisci(const std::string& perche) {
    std::fputs((perche + "\n").c_str(), stderr);
    std::abort();
}

}  // namespace

/// Any bytes as a project file: a refusal has words and leaves the project alone; what loads is written so that it
/// loads again and is written alike.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t lunghezza) {
    const std::string_view testo(reinterpret_cast<const char*>(dati), lunghezza);
    std::string messaggio;
    bool esito = false;
    kelvo::Rotonda rotonda;
    rotonda.LoadTesto(testo, messaggio, esito);
    if (!esito) {
        if (messaggio.empty() || rotonda.Rami().Count() != 0 || rotonda.revisione().tutto != 0) {
            finisci("a refusal without words, or a project that was touched");
        }
        return 0;
    }
    std::string scritto;
    try {
        scritto = rotonda.TestoFile();
    } catch (const kelvo::Guasto&) {
        return 0;  // past the limits of the file once the missing keys are filled in
    }
    kelvo::Rotonda riletta;
    riletta.LoadTesto(scritto, messaggio, esito);
    if (!esito) {
        finisci("what was written is refused: " + messaggio);
    }
    if (riletta.TestoFile() != scritto) {
        finisci("what was written is written otherwise");
    }
    return 0;
}

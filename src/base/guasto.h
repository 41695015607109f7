#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kelvo {

/// Classic numbers of the run-time faults that the program can raise.
enum class NumeroGuasto : int {
    chiamataNonValida = 5,
    overflow = 6,
    indiceFuoriIntervallo = 9,
    divisionePerZero = 11,
    tipoNonCorrispondente = 13,
    operazioneImpossibile = 17,
    fileNonTrovato = 53,
    erroreDispositivo = 57,
    discoPieno = 61,
    autorizzazioneNegata = 70,
    accessoPercorso = 75,
    percorsoNonTrovato = 76,
    chiaveGiaAssociata = 457,
};

/// Classic Italian words of a fault; "Errore definito dall'applicazione o dall'oggetto" for a number without any.
std::string_view paroleGuasto(NumeroGuasto numero);

/// The one run-time fault of the program: classic number and Italian description.
///
/// The description is the classic words, followed by the place in brackets where one is given:
/// "Divisione per zero (Ramo B, lunghezza svasatura 0)".
class Guasto : public std::runtime_error {
public:
    explicit Guasto(NumeroGuasto numero, std::string_view luogo = {});
    /// A fault with words of its own in place of the classic ones.
    static Guasto conParole(NumeroGuasto numero, std::string_view parole);

    NumeroGuasto numero() const { return numero_; }
    int codice() const { return static_cast<int>(numero_); }
    std::string descrizione() const { return what(); }

private:
    struct Parole {
        std::string testo;
    };
    Guasto(NumeroGuasto numero, const Parole& parole);
    NumeroGuasto numero_;
};

/// Place of a computation that needs none.
struct NessunLuogo {
    std::string operator()() const { return {}; }
};

/// A callable that words the place of a computation; it is called only when a fault is raised.
template <class T>
concept LuogoDiCalcolo = requires(const T& luogo) {
    { luogo() } -> std::convertible_to<std::string>;
};

/// Raises the fault `numero` at the place `luogo`. Out of line, so that the checked helpers stay small.
[[noreturn]] void lancia(NumeroGuasto numero, const std::string& luogo);

/// True for neither an infinity nor a NaN.
bool finito(double valore);

/// `valore` itself, or fault 6 if it is an infinity or a NaN.
template <LuogoDiCalcolo L = NessunLuogo>
double controllato(double valore, const L& luogo = {}) {
    if (!(valore - valore == 0.0)) [[unlikely]] {
        lancia(NumeroGuasto::overflow, luogo());
    }
    return valore;
}

/// a / b; fault 11 if b is 0 (whatever a is), fault 6 if the quotient is too large.
template <LuogoDiCalcolo L = NessunLuogo>
double dividi(double a, double b, const L& luogo = {}) {
    if (b == 0.0) [[unlikely]] {
        lancia(NumeroGuasto::divisionePerZero, luogo());
    }
    return controllato(a / b, luogo);
}

/// Square root; fault 5 if `valore` is negative, fault 6 if it is an infinity.
template <LuogoDiCalcolo L = NessunLuogo>
double radice(double valore, const L& luogo = {}) {
    if (!(valore >= 0.0)) [[unlikely]] {
        lancia(NumeroGuasto::chiamataNonValida, luogo());
    }
    return controllato(std::sqrt(valore), luogo);
}

/// Natural logarithm; fault 5 if `valore` is 0 or negative, fault 6 if it is an infinity.
template <LuogoDiCalcolo L = NessunLuogo>
double logaritmo(double valore, const L& luogo = {}) {
    if (!(valore > 0.0)) [[unlikely]] {
        lancia(NumeroGuasto::chiamataNonValida, luogo());
    }
    return controllato(std::log(valore), luogo);
}

/// Exponential; fault 6 if the result is too large.
template <LuogoDiCalcolo L = NessunLuogo>
double esponenziale(double valore, const L& luogo = {}) {
    return controllato(std::exp(valore), luogo);
}

/// Rounds to single precision; fault 6 if the value does not fit.
template <LuogoDiCalcolo L = NessunLuogo>
float aSingolo(double valore, const L& luogo = {}) {
    const auto singolo = static_cast<float>(valore);
    if (!(singolo - singolo == 0.0F)) [[unlikely]] {
        lancia(NumeroGuasto::overflow, luogo());
    }
    return singolo;
}

/// Nearest whole number, halves to the even neighbour.
double arrotondaPari(double valore);

/// Narrows a whole number to 16 bits; fault 6 if it does not fit.
template <LuogoDiCalcolo L = NessunLuogo>
std::int16_t aIntero16(double valore, const L& luogo = {}) {
    if (!(valore >= -32768.0 && valore <= 32767.0)) [[unlikely]] {
        lancia(NumeroGuasto::overflow, luogo());
    }
    return static_cast<std::int16_t>(valore);
}

}  // namespace kelvo

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kelvo {

/// A number pattern: "#0", "#0.0", "#0.00", "#0.000", "0.0000", "#0.00%", "#+0.00" and their kin.
///
/// Read at compile time; a text that is no pattern does not build. '%' scales by 100, '+' always shows the sign
/// ("+" for 0). There is never a thousands separator.
struct Formato {
    int decimali = 0;
    bool percento = false;
    bool segno = false;

    // NOLINTNEXTLINE(google-explicit-constructor): a pattern is written as the literal that it is
    consteval Formato(const char* modello) {
        const char* p = modello;
        if (*p == '#') {
            ++p;
        }
        if (*p == '+') {
            segno = true;
            ++p;
        }
        if (*p != '0') {
            throw "a pattern has one digit before the point";
        }
        ++p;
        if (*p == '.') {
            ++p;
            while (*p == '0') {
                ++decimali;
                ++p;
            }
            if (decimali == 0) {
                throw "a point is followed by digits";
            }
        }
        if (*p == '%') {
            percento = true;
            ++p;
        }
        if (*p != '\0') {
            throw "unknown character in a pattern";
        }
    }
    friend bool operator==(const Formato&, const Formato&) = default;
};

/// Plain text form: up to 7 significant digits for a single, 15 for a double; decimal comma, no trailing zeros, never
/// an exponent, -0 as "0". Fault 6 for an infinity or a NaN.
std::string testoNumero(float valore);
std::string testoNumero(double valore);
std::string testoNumero(int valore);

/// `valore` under a pattern: its plain text form rounded half away from zero, with a decimal comma.
/// A value that rounds to 0 has no minus sign. Fault 6 for an infinity or a NaN.
std::string formatta(float valore, Formato formato);
std::string formatta(double valore, Formato formato);

/// Which decimal separators a text may carry.
enum class Separatore { virgola, virgolaOPunto };

/// The number in `testo`, or nothing: optional blanks around, optional sign, digits with at most one decimal
/// separator. No thousands separators, no exponents; a lone separator is no number.
std::optional<double> leggiNumero(std::string_view testo, Separatore separatore = Separatore::virgola);
/// The same, rounded to single; nothing if it does not fit.
std::optional<float> leggiSingolo(std::string_view testo, Separatore separatore = Separatore::virgola);

/// Shortest text with a decimal point that reads back exactly to the same value, for files; may show an exponent.
/// The text of a single reads back exactly also by way of a double.
std::string testoEsatto(float valore);
std::string testoEsatto(double valore);

}  // namespace kelvo

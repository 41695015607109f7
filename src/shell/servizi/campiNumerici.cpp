#include "shell/servizi/campiNumerici.h"

#include "base/guasto.h"

namespace kelvo {

namespace {

constexpr std::string_view cifreEVirgola = "0123456789,";
constexpr std::size_t cifreMassime = 12;

}  // namespace

std::string tagNumerico(const CampoNumerico& campo) {
    std::string tag = "Type:Numeric;ValueMin:" + testoEsatto(campo.minimo);
    if (campo.massimo) {
        tag += ";ValueMax:" + testoEsatto(*campo.massimo);
    }
    return tag;
}

std::string intervalloAmmesso(const CampoNumerico& campo) {
    const std::string minimo = formatta(campo.minimo, campo.formato);
    return campo.massimo ? minimo + " ÷ " + formatta(*campo.massimo, campo.formato) : "≥ " + minimo;
}

std::string rifiutoLimiti(const CampoNumerico& campo) {
    const std::string minimo = formatta(campo.minimo, campo.formato);
    const std::string limiti =
        campo.massimo ? "compreso tra " + minimo + " e " + formatta(*campo.massimo, campo.formato) : "almeno " + minimo;
    return "Il valore deve essere " + limiti + (campo.unita.empty() ? "" : " ") + std::string{campo.unita};
}

void preparaNumerico(tBox& casella, const CampoNumerico& campo) {
    casella.caratteriAmmessi = cifreEVirgola;
    if (campo.minimo < 0.0) {
        casella.caratteriAmmessi += '-';
    }
    casella.lunghezzaMassima = cifreMassime;
    casella.virgola = true;
    casella.rifiuto = rifiutoLimiti(campo);
    casella.nomeCampo = campo.nome;
}

bool mascheraVuota(const tBox& casella) {
    return casella.testo().empty() || casella.testo() == ",";
}

float singoloDi(const tBox& casella) {
    if (mascheraVuota(casella)) {
        return 0.0F;
    }
    const auto valore = leggiSingolo(casella.testo());
    if (!valore) {
        const bool numero = leggiNumero(casella.testo()).has_value();
        throw Guasto(numero ? NumeroGuasto::overflow : NumeroGuasto::tipoNonCorrispondente,
                     casella.nome() + " '" + casella.testo() + "'");
    }
    return *valore;
}

}  // namespace kelvo

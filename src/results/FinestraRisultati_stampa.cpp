#include "results/FinestraRisultati.h"

#include <string_view>
#include <utility>

#include "shell/servizi/stampaDocumento.h"

namespace kelvo {

namespace {

using D = DocumentoPagine;

namespace testi {
constexpr const char* nonDisponibile = "Non disponibile";
constexpr const char* senzaFigure = "Non ci sono cifre da stampare: premere Calcola (F9)";
constexpr const char* inVigore = "In vigore nel calcolo";
constexpr const char* voce = "Voce";
constexpr const char* eta = "Età delle cifre: ";
constexpr const char* attuali = "calcolate sui dati del progetto come sono al momento della stampa.";
/// What a warning says to whoever sits before the window; on paper there is nothing to press.
constexpr std::string_view premere = " Premere Calcola (F9).";
}  // namespace testi

std::string perLaCarta(std::string avviso) {
    if (const auto posto = avviso.find(testi::premere); posto != std::string::npos) {
        avviso.erase(posto, testi::premere.size());
    }
    return avviso;
}

/// A sentence as it goes on behind a colon.
std::string dopoDuePunti(std::string frase) {
    if (!frase.empty() && frase.front() >= 'A' && frase.front() <= 'Z') {
        frase.front() = static_cast<char>(frase.front() - 'A' + 'a');
    }
    return frase;
}

}  // namespace

std::string FinestraRisultati::impedimentoStampa() const {
    if (servizi_.stampa == nullptr) {
        return testi::nonDisponibile;
    }
    return conFigure() ? std::string{} : testi::senzaFigure;
}

FinestraRisultati::Blocchi FinestraRisultati::figureSuCarta() const {
    Blocchi blocchi;
    for (const Controllo* controllo : ordine()) {
        if (const auto* griglia = dynamic_cast<const Griglia*>(controllo);
            griglia != nullptr && griglia != &ctlInVigore) {
            blocchi.emplace_back(tabellaSuCarta(*griglia));
        }
    }
    return blocchi;
}

DocumentoPagine FinestraRisultati::documento() {
    aggiornaNote();
    const std::string& quale = sottotitolo.testo();
    D carta = documentoDiProgetto(app(), didascalia() + (quale.empty() ? "" : " - " + quale));
    const std::string vecchi = perLaCarta(vecchiSuCarta());
    for (const std::string& nota : {vecchi, perLaCarta(lblFlussi.testo()), perLaCarta(lblNotte.testo())}) {
        if (!nota.empty()) {
            carta.blocchi.emplace_back(D::Paragrafo{.testo = nota, .segno = D::Segno::verifica});
        }
    }
    for (D::Blocco& blocco : figureSuCarta()) {
        carta.blocchi.push_back(std::move(blocco));
    }
    carta.blocchi.emplace_back(D::Titolo{testi::inVigore, 1});
    D::Tabella voci = tabellaSuCarta(ctlInVigore);
    voci.colonne.front().titolo = testi::voce;  // the title above has told it
    carta.blocchi.emplace_back(std::move(voci));
    carta.blocchi.emplace_back(D::Paragrafo{
        .testo = vecchi.empty() ? testi::attuali : dopoDuePunti(vecchi), .inizio = testi::eta, .quieto = true});
    return carta;
}

void FinestraRisultati::stampaFigure() {
    if (impedimentoStampa().empty() && lasciaFuoco()) {
        const std::string metodo = nome() + ":Stampa";
        gestisci(metodo.c_str(), [this] { stampaDocumento(contorno(), *servizi_.stampa, documento()); });
    }
}

void FinestraRisultati::salvaFigurePDF() {
    if (impedimentoStampa().empty() && lasciaFuoco()) {
        const std::string metodo = nome() + ":StampaPDF";
        gestisci(metodo.c_str(), [this] { salvaPDF(contorno(), *servizi_.stampa, documento()); });
    }
}

}  // namespace kelvo

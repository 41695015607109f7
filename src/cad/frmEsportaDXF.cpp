#include "cad/frmEsportaDXF.h"

#include <fmt/format.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "app/percorsi.h"
#include "app/titoli.h"
#include "base/file.h"
#include "base/testo.h"
#include "model/Rotonda.h"
#include "shell/servizi/esporta.h"

namespace kelvo {

namespace {

namespace testi {
constexpr const char* didascalia = "Esporta DXF";
constexpr const char* direzioni = "Direzioni dei rami";
constexpr const char* contenuto = "Contenuto del disegno";
constexpr const char* anteprima = "Anteprima";
constexpr const char* predefiniti = "Predefiniti";
constexpr const char* esporta = "Esporta...";
constexpr const char* annulla = "Annulla";
constexpr const char* filtro = "Disegno DXF (*.dxf)|*.dxf|Tutti i files(*.*)|*.*";
}  // namespace testi

constexpr const char* paginaFinestra = "EsportaDXF.htm";
constexpr const char* paginaDirezioni = "DXFDirezioni.htm";
constexpr Formato formato = "#0.00";

using Indici = std::make_index_sequence<frmEsportaDXF::direzioniMassime>;
using IndiciIpotesi = std::make_index_sequence<dxf::campiIpotesi.size()>;
using IndiciGruppi = std::make_index_sequence<dxf::vociGruppo.size()>;

std::string conRamo(const char* radice, std::size_t i) {
    return fmt::format("{}{}", radice, pianta::lettera(static_cast<int>(i) + 1));
}

template <std::size_t... I>
std::array<Etichetta, sizeof...(I)> etichetteDirezioni(std::index_sequence<I...> /*indici*/) {
    return {Etichetta{conRamo("lblDirezione", I)}...};
}

template <std::size_t... I>
std::array<tBox, sizeof...(I)> campiDirezioni(std::index_sequence<I...> /*indici*/) {
    return {tBox{conRamo("txtDirezione", I), tBox::maskedit, tagNumerico(frmEsportaDXF::campoDirezione())}...};
}

template <std::size_t... I>
std::array<Etichetta, sizeof...(I)> etichetteIpotesi(std::index_sequence<I...> /*indici*/) {
    return {Etichetta{"lbl" + std::string{dxf::campiIpotesi[I].controllo.substr(3)},
                      std::string{dxf::campiIpotesi[I].nome}}...};
}

template <std::size_t... I>
std::array<tBox, sizeof...(I)> campi(std::index_sequence<I...> /*indici*/) {
    return {tBox{std::string{dxf::campiIpotesi[I].controllo}, tBox::maskedit,
                 tagNumerico(frmEsportaDXF::campoNumerico(dxf::campiIpotesi[I]))}...};
}

template <std::size_t... I>
std::array<Casella, sizeof...(I)> caselle(std::index_sequence<I...> /*indici*/) {
    return {Casella{std::string{dxf::vociGruppo[I].controllo}, std::string{dxf::vociGruppo[I].nome}}...};
}

/// Why a drawing cannot be written there; empty where it can.
std::string rifiuto(const std::string& percorso) {
    constexpr std::size_t estensione = 4;
    if (maiuscoleAscii(ultimiCaratteri(percorso, estensione)) != ".DXF") {
        return "Per il disegno serve un nome che finisce con .dxf";
    }
    return dxf::contieneProgetto(percorso) ? "Il disegno non può prendere il posto di un progetto" : std::string{};
}

/// The number that a field shows, where the user typed one that it takes; else nothing.
std::optional<double> scritto(const tBox& campo) {
    std::string conPunto = campo.testo();
    std::replace(conPunto.begin(), conPunto.end(), ',', '.');
    if (!campo.modificato() || !campo.regole().ammette(conPunto)) {
        return std::nullopt;
    }
    return leggiNumero(campo.testo());
}

}  // namespace

const CampoNumerico& frmEsportaDXF::campoDirezione() {
    static const CampoNumerico campo{"Direzione", "gradi", 0.0, 330.0, formato};
    return campo;
}

CampoNumerico frmEsportaDXF::campoNumerico(const dxf::CampoIpotesi& campo) {
    return {campo.nome, campo.unita, campo.minimo, campo.massimo, formato};
}

frmEsportaDXF::frmEsportaDXF(const Contorno& contorno)
    : Finestra(contorno, "frmEsportaDXF", testi::didascalia),
      frDirezioni("frDirezioni", testi::direzioni, {}),
      lblDirezioni(etichetteDirezioni(Indici{})),
      txtDirezioni(campiDirezioni(Indici{})),
      lblDifetto("lblDifetto"),
      lblIpotesi(etichetteIpotesi(IndiciIpotesi{})),
      txtIpotesi(campi(IndiciIpotesi{})),
      frContenuto("frContenuto", testi::contenuto, {}),
      chkGruppi(caselle(IndiciGruppi{})),
      frAnteprima("frAnteprima", testi::anteprima, {}),
      cmdPredefiniti("cmdPredefiniti", testi::predefiniti),
      cmdEsporta("cmdEsporta", testi::esporta),
      cmdAnnulla("cmdAnnulla", testi::annulla) {
    std::vector<Controllo*> ordine;
    for (std::size_t i = 0; i < direzioniMassime; ++i) {
        ordine.insert(ordine.end(), {&lblDirezioni[i], &txtDirezioni[i]});
    }
    ordine.push_back(&lblDifetto);
    for (Casella& casella : chkGruppi) {
        ordine.push_back(&casella);
    }
    for (std::size_t i = 0; i < txtIpotesi.size(); ++i) {
        ordine.insert(ordine.end(), {&lblIpotesi[i], &txtIpotesi[i]});
    }
    ordine.insert(ordine.end(), {&cmdPredefiniti, &cmdEsporta, &cmdAnnulla});
    ordina(ordine);
    prepara();
    predefiniti();
    leggi();
}

void frmEsportaDXF::prepara() {
    ctlHelp.pagina(paginaFinestra);
    const auto collega = [this](tBox& campo, const CampoNumerico& numero, std::string_view pagina) {
        preparaNumerico(campo, numero);
        campo.paginaAiuto = pagina;
        campo.dopoTasto = [this] { mutata(); };
        campo.dopoUscita = [this] { mutata(); };
    };
    for (tBox& campo : txtDirezioni) {
        collega(campo, campoDirezione(), paginaDirezioni);
    }
    txtDirezioni.front().abilitato(false);
    txtDirezioni.front().suggerimento = "Le direzioni si contano da quella del ramo A";
    for (std::size_t i = 0; i < txtIpotesi.size(); ++i) {
        collega(txtIpotesi[i], campoNumerico(dxf::campiIpotesi[i]), dxf::campiIpotesi[i].pagina);
    }
    for (Casella& casella : chkGruppi) {
        casella.alClic = [this] { mutata(); };
    }
    cmdPredefiniti.allaPressione = [this] { predefiniti(); };
    cmdEsporta.allaPressione = [this] { esporta(); };
    cmdAnnulla.allaPressione = [this] { chiusura_.emit(); };
}

void frmEsportaDXF::predefiniti() {
    const std::vector<double> uguali = dxf::direzioniUguali(rami_);
    for (std::size_t i = 0; i < direzioniMassime; ++i) {
        txtDirezioni[i].testo(i < uguali.size() ? formatta(uguali[i], formato) : std::string{});
    }
    const pianta::Ipotesi proprie;
    for (std::size_t i = 0; i < txtIpotesi.size(); ++i) {
        txtIpotesi[i].testo(formatta(proprie.*dxf::campiIpotesi[i].valore, formato));
    }
    for (Casella& casella : chkGruppi) {
        casella.spuntata(true);
    }
    mutata();
}

void frmEsportaDXF::attivata() {
    leggi();
}

void frmEsportaDXF::leggi() {
    // None of them stand while there is no project.
    const auto rami = static_cast<std::size_t>(rotonda().Rami().Count());
    if (rami != rami_) {
        rami_ = rami;
        predefiniti();
    }
    for (std::size_t i = 0; i < direzioniMassime; ++i) {
        const bool suo = i < rami_;
        lblDirezioni[i].visibile(suo);
        txtDirezioni[i].visibile(suo);
        if (suo) {
            constexpr std::size_t breve = 16;
            const auto numero = static_cast<std::int16_t>(i + 1);
            lblDirezioni[i].testo(fmt::format("{} - {}", pianta::lettera(numero),
                                              accorciato(rotonda().Ramo(numero).Descrizione(), breve)));
        }
    }
    mutata();
}

std::vector<double> frmEsportaDXF::direzioniMostrate() const {
    std::vector<double> direzioni = dxf::direzioniUguali(rami_);
    for (std::size_t i = 1; i < direzioni.size(); ++i) {
        direzioni[i] = scritto(txtDirezioni.at(i)).value_or(direzioni[i]);
    }
    return direzioni;
}

std::string frmEsportaDXF::difetto() const {
    return rami_ == 0 ? std::string{} : dxf::difettoDirezioni(direzioniMostrate());
}

pianta::Ipotesi frmEsportaDXF::ipotesiMostrate() const {
    pianta::Ipotesi ipotesi;
    for (std::size_t i = 0; i < txtIpotesi.size(); ++i) {
        double& valore = ipotesi.*dxf::campiIpotesi[i].valore;
        valore = scritto(txtIpotesi.at(i)).value_or(valore);
    }
    const bool scritte =
        std::any_of(txtDirezioni.begin(), txtDirezioni.end(), [](const tBox& c) { return c.modificato(); });
    if (scritte && difetto().empty()) {
        ipotesi.direzioni = direzioniMostrate();
    }
    return ipotesi;
}

pianta::DatiPianta frmEsportaDXF::piantaMostrata() const {
    if (rami_ == 0) {
        return {};
    }
    pianta::DatiPianta dati = pianta::datiPianta(app().theRotonda());
    dati.ipotesi = ipotesiMostrate();
    return dati;
}

dxf::Scelte frmEsportaDXF::scelteMostrate() const {
    dxf::Scelte scelte;
    for (std::size_t i = 0; i < chkGruppi.size(); ++i) {
        scelte.metti(dxf::vociGruppo[i].gruppo, chkGruppi.at(i).spuntata());
    }
    return scelte;
}

void frmEsportaDXF::mutata() {
    const std::string parole = difetto();
    lblDifetto.testo(parole.empty() ? parole : "Direzioni non disegnabili: " + parole);
    lblDifetto.visibile(!parole.empty());
    piantaMutata_.emit();
}

void frmEsportaDXF::esporta() {
    if (rami_ == 0 || !lasciaFuoco() || !convalida()) {
        return;
    }
    if (const std::string parole = difetto(); !parole.empty()) {
        messaggio("Direzioni non disegnabili: " + parole, titoli::attenzione, Icona::esclamazione);
        return;
    }
    DialogoFile* dialogo = contorno().servizi.dialogo;
    if (dialogo == nullptr) {
        return;
    }
    const std::string nome = nomeFileDati(rotonda().NomeFile(), {});
    const RichiestaFile richiesta{.estensione = "dxf",
                                  .filtro = testi::filtro,
                                  .cartella = cartellaProgetti(app().theAmbiente),
                                  .nome = (nome.empty() ? std::string{"Rotatoria"} : nome) + ".dxf"};
    if (const std::optional<std::string> percorso = dialogo->salva(richiesta)) {
        gestisci("frmEsportaDXF:esporta", [&] { scrivi(*percorso); });
    }
}

void frmEsportaDXF::scrivi(const std::string& percorso) {
    if (const std::string parole = rifiuto(percorso); !parole.empty()) {
        messaggio(parole + " (" + percorso + ")", titoli::attenzione, Icona::esclamazione);
        return;
    }
    const dxf::Documento disegno = dxf::disegno(piantaMostrata(), dxf::cartiglioDi(rotonda()), scelteMostrate());
    const std::string errore = scriviFileSicuro(app().file, percorso, dxf::testoDxf(disegno));
    if (!errore.empty()) {
        messaggio("Impossibile scrivere il file: " + errore + " (" + percorso + ")", titoli::attenzione,
                  Icona::esclamazione);
        return;
    }
    cornice().avviso("Scritto il file " + percorso);
    chiusura_.emit();
}

}  // namespace kelvo

#include "reports/modStampaRelazione.h"

#include <fmt/format.h>

#include <algorithm>
#include <exception>
#include <filesystem>
#include <system_error>
#include <utility>

#include "app/titoli.h"
#include "base/guasto.h"
#include "base/numeri.h"
#include "base/testo.h"
#include "reports/segnaposto.h"
#include "results/calcoloIpotesi.h"
#include "results/risultatiProgetto.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view modulo = "modStampaRelazione:";
constexpr std::string_view soloDati = "RelazioneMasterIN";
constexpr std::string_view conCorsie = "RelazioneMasterTOT";

namespace testi {
constexpr const char* estensione = "docx";
constexpr const char* filtro = "File relazione rotonda (*.docx)|*.docx|Tutti i files(*.*)|*.*";
constexpr const char* fatto = "KELVO 2014 - Elaborazione terminata";
constexpr const char* informazione = "KELVO 2014 - Informazione";
constexpr const char* nonAperto = "Nessun programma del sistema ha aperto il file:";
constexpr const char* mancanti = "Il modello scelto non ha le sezioni seguenti, che non sono state compilate:";
constexpr const char* senzaPDF = "La relazione è stata salvata: {}\r\nIl PDF non è stato fatto: {}.";
constexpr const char* alPostoDellaRelazione = "avrebbe il nome della relazione stessa e ne prenderebbe il posto";
constexpr const char* sostituirePDF = "Il PDF della relazione esiste già:\r\n{}\r\nSostituirlo?";
constexpr const char* senzaDestinazione = "Nessuno può chiedere dove salvare la relazione";
constexpr const char* alPostoDelModello = "Il file scelto è il modello della relazione: scegliere un altro nome";
}  // namespace testi

/// The folder of a path as the user reads it.
std::string cartellaDi(const std::string& percorso) {
    return testoDaPercorso(percorsoDaTesto(percorso).parent_path());
}

/// A name that can stand in a file's name on every system.
std::string nomeFileAmmesso(std::string_view nome) {
    constexpr std::string_view vietati = "\\/:*?\"<>|";
    std::string ammesso;
    for (const char c : nome) {
        const bool male = vietati.find(c) != std::string_view::npos || static_cast<unsigned char>(c) < ' ';
        ammesso += male ? '_' : c;
    }
    return ammesso;
}

/// One file under both paths, however they are spelled.
bool stessoFile(const std::string& uno, const std::string& altro) {
    std::error_code errore;
    return uno == altro || fs::equivalent(percorsoDaTesto(uno), percorsoDaTesto(altro), errore);
}

bool eFile(const std::string& percorso) {
    std::error_code errore;
    return fs::is_regular_file(percorsoDaTesto(percorso), errore);
}

}  // namespace

modStampaRelazione::modStampaRelazione(Applicazione& app, const ServiziRelazione& servizi)
    : app_(app), servizi_(servizi) {}

EsitoRelazione modStampaRelazione::compilaRelazioneWord(const std::string& nomeModello) {
    const bool risultati = nomeModello != soloDati;
    const bool totale = nomeModello == conCorsie;
    return compila({.metodo = "compilaRelazioneWord",
                    .modello = "\\Modelli\\" + nomeModello,
                    .prefisso = "Relazione_",
                    .conRisultati = risultati,
                    .totale = passiRelazione,
                    .passi = {[this] { riempiAnagraficaRotonda(); }, [this] { riempiToponomasticaIngressi(); },
                              [this] {
                                  riempiGeometriaIngressi();
                                  riempiPianta();
                              },
                              [this] { traffico(); }, [this] { riempiMatriceSvoltePerc(); }, [this] { matrice(); },
                              [this] { riempiTotaliMatriceSvolte(); }, [this] { riempiVeicoliEquivalenti(); },
                              [this] { composizione(); }, [this] { riempiCondizioniEsterne(); },
                              [this] { riempiTempoModellazione(); },
                              [this, risultati] {
                                  if (risultati) {
                                      riempiCapacitaUltima();
                                      riempiCapacitaCodeRitardi();
                                  }
                              },
                              [this, totale] {
                                  if (totale) {
                                      corsie();
                                  }
                              }}});
}

EsitoRelazione modStampaRelazione::compilaAllegatiWord(const std::string& nomeModello) {
    return compila({.metodo = "compilaAllegatiWord",
                    .modello = "\\modelli\\" + nomeModello + ".dot",
                    .prefisso = "Relazione_ALLEGATI_",
                    .conRisultati = true,
                    .totale = passiAllegati,
                    .passi = {[this] { riempiAnagraficaRotonda(); }, [this] { riempiCapacitaUltima(); },
                              [this] { riempiCapacitaCodeRitardi(); }}});
}

void modStampaRelazione::traffico() {
    if (rotonda().TipoAnalisi() == analisi::curva) {
        riempiDatiTraffico();
        nascondiDatiTrafficoST();
    } else if (rotonda().TipoAnalisi() == analisi::tabella) {
        riempiDatiTrafficoST();
        nascondiDatiTraffico();
    }
}

void modStampaRelazione::matrice() {
    if (rotonda().TipoMatriceSvolte() == 0) {
        riempiMatriceSvolte();
    } else {
        nascondiMatriceSvolte();
    }
}

void modStampaRelazione::composizione() {
    if (rotonda().TipoFlusso() == 0) {
        riempiComposizioneTraffico();
        nascondiComposizioneTrafficoST();
    } else if (rotonda().TipoFlusso() == 1) {
        riempiComposizioneTrafficoST();
        nascondiComposizioneTraffico();
    }
}

void modStampaRelazione::corsie() {
    if (servizi_.corsiaDX && servizi_.corsiaDX()) {
        riempiCorsiaDX();
    } else {
        nascondiCorsiaDX();
    }
}

EsitoRelazione modStampaRelazione::gestisci(const std::string& metodo,
                                            const std::function<EsitoRelazione()>& procedura) {
    EsitoRelazione esito = EsitoRelazione::fallita;
    const auto registra = [&](const Guasto& guasto) {
        app_.comune.erroreLog(guasto.codice(), std::string{modulo} + metodo, guasto.descrizione(), true);
    };
    try {
        esito = procedura();
    } catch (const Guasto& guasto) {
        registra(guasto);
    } catch (const std::exception& errore) {
        // What is no fault of the program's own, such as memory that is not there, ends the run just so.
        registra(Guasto(NumeroGuasto::operazioneImpossibile, errore.what()));
    }
    if (servizi_.avanzamento != nullptr) {
        servizi_.avanzamento->chiudi();
    }
    documento_.reset();
    return esito;
}

EsitoRelazione modStampaRelazione::compila(const Corsa& corsa) {
    return gestisci(corsa.metodo, [&] { return componiESalva(corsa); });
}

EsitoRelazione modStampaRelazione::componiESalva(const Corsa& corsa) {
    if (corsa.conRisultati && !assicuraRisultati(app_)) {
        return EsitoRelazione::fallita;
    }
    passo_ = 0;
    mancanti_.clear();
    saltate_ = 0;
    if (servizi_.avanzamento != nullptr) {
        servizi_.avanzamento->mostra(corsa.totale);
    }
    apriModello(corsa);
    fattoPasso();
    for (const Passo& passo : corsa.passi) {
        passo();
        fattoPasso();
    }
    return salva(corsa);
}

EsitoRelazione modStampaRelazione::salva(const Corsa& corsa) {
    RichiestaFile richiesta{.estensione = testi::estensione, .filtro = testi::filtro, .cartella = {}, .nome = {}};
    const bool chiede = servizi_.percorso.empty();
    if (chiede) {
        richiesta.cartella = cartellaRelazioni();
        richiesta.nome = nomePredefinito(corsa.prefisso);
        diceMancanti();
    }
    fattoPasso();
    std::string percorso = servizi_.percorso;
    if (chiede) {
        if (servizi_.dialogo == nullptr) {
            throw Guasto::conParole(NumeroGuasto::chiamataNonValida, testi::senzaDestinazione);
        }
        const std::optional<std::string> scelto = servizi_.dialogo->salva(richiesta);
        if (!scelto || scelto->empty()) {
            return EsitoRelazione::annullata;
        }
        percorso = *scelto;
        if (proprio_ && stessoFile(percorso, servizi_.modelloProprio)) {
            throw Guasto::conParole(NumeroGuasto::chiamataNonValida, testi::alPostoDelModello);
        }
    }
    fattoPasso();
    if (documento_->HaSegnalibro(segnalibro::senzaCorsiaDX)) {
        togli(segnalibro::ipotesiCorsiaDX);
    }
    documento_->Sbianca(segnaposto::tutti);
    documento_->Salva(app_.file, percorso);
    fattoPasso();
    const bool intera = servizi_.pdf == nullptr || faPDF(percorso);
    chiude(percorso);
    return intera ? EsitoRelazione::fatta : EsitoRelazione::senzaPDF;
}

/// False if there is none; the reason has been shown then, or the user keeps the file that stands in its place.
bool modStampaRelazione::faPDF(const std::string& percorso) {
    const std::string pdf = percorsoPDF(percorso);
    // Who gives a path has agreed that what stands there is replaced.
    const bool chiede = servizi_.percorso.empty();
    std::string errore;
    if (stessoFile(percorso, pdf)) {
        errore = testi::alPostoDellaRelazione;
    } else if (chiede && eFile(pdf) &&
               servizi_.messaggi.mostra(fmt::format(testi::sostituirePDF, pdf), titoli::attenzione, Icona::esclamazione,
                                        Pulsanti::siNo) != Risposta::si) {
        return false;
    } else {
        errore = servizi_.pdf->converti(percorso, pdf, [this] {
            if (servizi_.avanzamento != nullptr) {
                servizi_.avanzamento->attende();
            }
        });
    }
    if (!errore.empty()) {
        app_.comune.traceLog(fmt::format("{}faPDF {}: {}", modulo, pdf, errore));
        servizi_.messaggi.mostra(fmt::format(testi::senzaPDF, percorso, errore), titoli::attenzione,
                                 Icona::esclamazione, Pulsanti::ok);
    }
    return errore.empty();
}

/// The last two steps: the question, and what follows from its answer.
void modStampaRelazione::chiude(const std::string& percorso) {
    bool apre = false;
    if (servizi_.percorso.empty()) {
        const std::string testo = fmt::format(
            "Relazione correttamente compilata.\r\nIl file è stato salvato nella directory: {}", cartellaDi(percorso));
        if (servizi_.documenti == nullptr) {
            servizi_.messaggi.mostra(testo, testi::fatto, Icona::informazione, Pulsanti::ok);
        } else {
            apre = servizi_.messaggi.mostra(testo + "\r\nAprire il file ora?", testi::fatto, Icona::informazione,
                                            Pulsanti::siNo) == Risposta::si;
        }
    }
    fattoPasso();
    if (apre && !servizi_.documenti->apri(percorso)) {
        servizi_.messaggi.mostra(fmt::format("{}\r\n{}", testi::nonAperto, percorso), titoli::attenzione,
                                 Icona::esclamazione, Pulsanti::ok);
    }
    fattoPasso();
}

void modStampaRelazione::apriModello(const Corsa& corsa) {
    proprio_ = corsa.modelloProprio && !servizi_.modelloProprio.empty();
    if (proprio_) {
        const fs::path scelto = percorsoDaTesto(servizi_.modelloProprio);
        documento_ = documentoDaModello(testoDaPercorso(scelto.parent_path()), testoDaPercorso(scelto.filename()));
    } else {
        documento_ = documentoDaModello(app_.theAmbiente.CartellaScritta(), corsa.modello);
    }
}

void modStampaRelazione::fattoPasso() {
    ++passo_;
    if (servizi_.avanzamento != nullptr) {
        servizi_.avanzamento->passo(passo_);
    }
}

std::string modStampaRelazione::nomePredefinito(const std::string& prefisso) const {
    const PartiData ora = partiDi(app_.orologio.adesso());
    return fmt::format("{}{}_{:02}-{:02}-{}--{:02}-{:02}.{}", prefisso, nomeFileAmmesso(rotonda().NomeFile()),
                       ora.giorno, ora.mese, ora.anno, ora.ora, ora.minuto, testi::estensione);
}

/// The folder of the reports, made where it does not stand. One that cannot be made is passed over: the user chooses
/// another in the dialogue.
std::string modStampaRelazione::cartellaRelazioni() {
    std::string cartella = app_.theAmbiente.PercorsoProgramma("Relazioni");
    std::error_code errore;
    fs::create_directories(percorsoDaTesto(cartella), errore);
    if (!fs::is_directory(percorsoDaTesto(cartella), errore)) {
        app_.comune.traceLog(fmt::format("{}cartella non creata: {}", modulo, cartella));
        return app_.theAmbiente.CartellaLavoro();
    }
    return cartella;
}

void modStampaRelazione::diceMancanti() {
    if (mancanti_.empty()) {
        return;
    }
    std::string testo = testi::mancanti;
    for (const std::string& nome : mancanti_) {
        testo += "\r\n- " + nome;
    }
    servizi_.messaggi.mostra(testo, testi::informazione, Icona::informazione, Pulsanti::ok);
}

void modStampaRelazione::sezione(std::string_view nome, const Passo& procedura) {
    try {
        procedura();
    } catch (const SegnalibroMancante& guasto) {
        // A template of the user's own may leave sections out: they are told together, not one by one.
        constexpr std::string_view riempi = "riempi";
        saltate_ += proprio_ ? 1 : 0;
        if (proprio_ && nome.substr(0, riempi.size()) == riempi) {
            mancanti_.emplace_back(nome.substr(riempi.size()));
        }
        app_.comune.erroreLog(guasto.codice(), fmt::format("{}{}", modulo, nome), guasto.descrizione(), !proprio_);
    } catch (const Guasto& guasto) {
        app_.comune.erroreLog(guasto.codice(), fmt::format("{}{}", modulo, nome), guasto.descrizione(), true);
    }
}

int modStampaRelazione::InserisciVariabileWord(std::string_view testoCercato, std::string_view testoNuovo) {
    return documento_->Sostituisci(testoCercato, testoNuovo);
}

void modStampaRelazione::elimina(std::string_view segnalibro) {
    documento_->SelezionaSegnalibro(segnalibro);
    documento_->EliminaSelezione();
}

void modStampaRelazione::togli(std::string_view segnalibro) {
    if (documento_->HaSegnalibro(segnalibro)) {
        elimina(segnalibro);
    }
}

void modStampaRelazione::nascondiMatriceSvolte() {
    sezione("nascondiMatriceSvolte", [&] { elimina(segnalibro::paragrafoMatriceSvolte); });
}

void modStampaRelazione::nascondiDatiTraffico() {
    sezione("nascondiDatiTraffico", [&] { elimina(segnalibro::paragrafoDatiTraffico); });
}

void modStampaRelazione::nascondiDatiTrafficoST() {
    sezione("nascondiDatiTrafficoST", [&] { elimina(segnalibro::paragrafoDatiTrafficoST); });
}

void modStampaRelazione::nascondiComposizioneTraffico() {
    sezione("nascondiComposizioneTraffico", [&] { elimina(segnalibro::paragrafoComposizioneTraffico); });
}

void modStampaRelazione::nascondiComposizioneTrafficoST() {
    sezione("nascondiComposizioneTrafficoST", [&] { elimina(segnalibro::paragrafoComposizioneTrafficoST); });
}

void modStampaRelazione::nascondiCorsiaDX() {
    sezione("nascondiCorsiaDX", [&] { elimina(segnalibro::paragrafoCorsiaDX); });
}

}  // namespace kelvo

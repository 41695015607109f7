#include "confronto.h"

#include <fmt/format.h>

#include <filesystem>
#include <sstream>

#include "base/guasto.h"

namespace kelvo::prove {

namespace {

constexpr const char* nomeLog = "errori.txt";

Geometria geometria(const oracolo::Misure& m) {
    return {.e = m.e, .v = m.v, .l = m.l, .phi = m.phi, .r = m.r, .D = m.D};
}

/// The blocks of a log, six lines each: the number stands in the third, label and description in the fourth.
std::vector<Banco::Blocco> blocchiDi(const std::string& testo) {
    std::istringstream righe(testo);
    std::string riga;
    std::vector<Banco::Blocco> blocchi;
    for (int i = 0; std::getline(righe, riga); ++i) {
        if (!riga.empty() && riga.back() == '\r') {
            riga.pop_back();
        }
        if (i % 6 == 0) {
            blocchi.emplace_back();
        } else if (i % 6 == 2) {
            blocchi.back().numero = std::stoi(riga);
        } else if (i % 6 == 3) {
            blocchi.back().riga = riga;
        }
    }
    return blocchi;
}

std::string diverso(const std::string& dove, double atteso, double trovato) {
    return fmt::format("{}: expected {:.17g}, found {:.17g}", dove, atteso, trovato);
}

std::string diverso(const std::string& dove, float atteso, float trovato) {
    return fmt::format("{}: expected {:.9g}, found {:.9g}", dove, atteso, trovato);
}

/// First difference between two records, bit for bit but for the sign of 0.
std::string confrontaRecord(const std::string& dove, const Iterazione& a, const Iterazione& b) {
    if (!(a.Flusso == b.Flusso)) {
        return diverso(dove + " Flusso", a.Flusso, b.Flusso);
    }
    if (!(a.Capacita == b.Capacita)) {
        return diverso(dove + " Capacita", a.Capacita, b.Capacita);
    }
    if (!(a.Coeff_Sat == b.Coeff_Sat)) {
        return diverso(dove + " Coeff_Sat", a.Coeff_Sat, b.Coeff_Sat);
    }
    if (!(a.Coda == b.Coda)) {
        return diverso(dove + " Coda", a.Coda, b.Coda);
    }
    if (!(a.Ritardo == b.Ritardo)) {
        return diverso(dove + " Ritardo", a.Ritardo, b.Ritardo);
    }
    return {};
}

std::string confrontaIngresso(const std::string& dove, const oracolo::Ingresso& a, const oracolo::Ingresso& b) {
    using Campo = std::pair<const char*, double oracolo::Ingresso::*>;
    for (const auto& [nome, campo] :
         {Campo{"K", &oracolo::Ingresso::K}, Campo{"Td", &oracolo::Ingresso::Td}, Campo{"S", &oracolo::Ingresso::S},
          Campo{"X2", &oracolo::Ingresso::X2}, Campo{"F", &oracolo::Ingresso::F}, Campo{"Fc", &oracolo::Ingresso::Fc},
          Campo{"CapacitaUltima", &oracolo::Ingresso::CapacitaUltima}}) {
        if (!(a.*campo == b.*campo)) {
            return diverso(dove + " " + nome, a.*campo, b.*campo);
        }
    }
    const int ultimoAtteso = a.record.empty() ? 0 : a.record.rbegin()->first;
    const int ultimoTrovato = b.record.empty() ? 0 : b.record.rbegin()->first;
    if (ultimoAtteso != ultimoTrovato) {
        return diverso(dove + " last record", double(ultimoAtteso), double(ultimoTrovato));
    }
    for (int k = 1; k <= ultimoAtteso; ++k) {
        const auto voce = a.record.find(k);
        const Iterazione atteso = voce == a.record.end() ? Iterazione{} : voce->second;
        const std::string esito = confrontaRecord(fmt::format("{} record {}", dove, k), atteso, b.record.at(k));
        if (!esito.empty()) {
            return esito;
        }
    }
    return {};
}

FormaCalcolo formaDi(const Corsa& corsa) {
    if (corsa.operazione == Operazione::bilanciamento) {
        return FormaCalcolo::bilanciamento;
    }
    if (corsa.operazione == Operazione::bilanciamentoIpotesi || corsa.richiesta.forma == oracolo::Forma::ipotesi) {
        return FormaCalcolo::ipotesi;
    }
    return corsa.richiesta.forma == oracolo::Forma::corsie ? FormaCalcolo::corsiaDestra : FormaCalcolo::piana;
}

Timbro timbroAtteso(const Timbro& prima, const Applicazione& app, const Corsa& corsa, const oracolo::Esito& esito) {
    const std::uint64_t revisione = app.theRotonda().revisione().calcolo;
    if (esito.guasto == 0) {
        return {formaDi(corsa), revisione, app.ambienteCalcolo()};
    }
    return esito.scritti.empty() ? prima : Timbro{FormaCalcolo::interrotta, revisione, {}};
}

oracolo::Esito interroga(oracolo::Progetto& p, const Corsa& corsa) {
    switch (corsa.operazione) {
        case Operazione::bilanciamento:
            return oracolo::bilanciamento(p);
        case Operazione::bilanciamentoIpotesi:
            return oracolo::bilanciamento(p, corsa.richiesta.ipotesi);
        case Operazione::curva:
            return oracolo::tempoFlusso(p, corsa.richiesta);
        case Operazione::tabella:
            break;
    }
    return oracolo::tempoFlussoST(p, corsa.richiesta);
}

Corsa simulazione(Operazione operazione, const std::string& modo) {
    Corsa corsa;
    corsa.operazione = operazione;
    corsa.richiesta.modo = modo;
    return corsa;
}

Corsa conIpotesi(Corsa corsa, int indice, const oracolo::Misure& misure) {
    corsa.richiesta.forma = oracolo::Forma::ipotesi;
    corsa.richiesta.ipotesi = {indice, misure};
    return corsa;
}

Corsa conCorsie(Corsa corsa, const std::array<bool, 4>& corsie) {
    corsa.richiesta.forma = oracolo::Forma::corsie;
    corsa.richiesta.corsie = corsie;
    return corsa;
}

}  // namespace

std::string Corsa::nome() const {
    const char* operazioni[] = {"balancing", "what-if balancing", "curve", "table"};
    const char* forme[] = {"plain", "what-if", "right-turn"};
    return fmt::format("{}, {}, modo {}, leg {}, lanes {:d}{:d}{:d}{:d}", operazioni[static_cast<int>(operazione)],
                       forme[static_cast<int>(richiesta.forma)], richiesta.modo, richiesta.ipotesi.indice,
                       richiesta.corsie[0], richiesta.corsie[1], richiesta.corsie[2], richiesta.corsie[3]);
}

std::string Corsa::metodo() const {
    if (operazione == Operazione::curva) {
        return "Calcola_Tempo_Flusso";
    }
    return operazione == Operazione::tabella ? "Calcola_Tempo_Flusso_ST" : "Calcola_Bilanciamento";
}

Corsa bilancia() {
    return {};
}

Corsa bilanciaIpotesi(int indice, const oracolo::Misure& misure) {
    return conIpotesi(simulazione(Operazione::bilanciamentoIpotesi, "0"), indice, misure);
}

Corsa curva(const std::string& modo) {
    return simulazione(Operazione::curva, modo);
}

Corsa curvaIpotesi(int indice, const oracolo::Misure& misure, const std::string& modo) {
    return conIpotesi(curva(modo), indice, misure);
}

Corsa curvaDX(const std::string& modo, const std::array<bool, 4>& corsie) {
    return conCorsie(curva(modo), corsie);
}

Corsa tabella(const std::string& modo) {
    return simulazione(Operazione::tabella, modo);
}

Corsa tabellaIpotesi(int indice, const oracolo::Misure& misure, const std::string& modo) {
    return conIpotesi(tabella(modo), indice, misure);
}

Corsa tabellaDX(const std::string& modo, const std::array<bool, 4>& corsie) {
    return conCorsie(tabella(modo), corsie);
}

Banco::Banco(int rami) {
    finta.app.configurazione.PathErrore = nomeLog;
    nuovo(rami);
}

void Banco::nuovo(int rami) {
    finta.app.nuovaRotonda();
    rotonda().NumeroRami(static_cast<std::int16_t>(rami));
    for (int i = 1; i <= rami; ++i) {
        rotonda().AddRamo(fmt::format("{}Ramo", i));
    }
}

void Banco::finestra(DataOra inizio, DataOra fine, int minuti, int segmenti) {
    rotonda().TempoIniziale(inizio);
    rotonda().TempoFinale(fine);
    rotonda().SegmentoTempo(oraDelGiorno(0, minuti));
    for (int i = 1; i <= rotonda().NumeroRami(); ++i) {
        ramo(i).theDatiTraffico().NumSegmentiTempo(static_cast<std::int16_t>(segmenti));
        ramo(i).theComposizioneTraffico().NumSegmentiTempo(static_cast<std::int16_t>(segmenti));
    }
}

void Banco::esegui(const Corsa& corsa) {
    finta.messaggi.mostrati.clear();
    const std::string log = finta.cartella.file(nomeLog);
    std::filesystem::remove(log);
    const oracolo::Richiesta& r = corsa.richiesta;
    const auto indice = static_cast<std::int16_t>(r.ipotesi.indice);
    const Geometria g = geometria(r.ipotesi.misure);
    if (corsa.operazione == Operazione::bilanciamento) {
        motore.Calcola_Bilanciamento();
    } else if (corsa.operazione == Operazione::bilanciamentoIpotesi) {
        motore.Calcola_Bilanciamento(indice, g);
    } else if (corsa.operazione == Operazione::curva) {
        switch (r.forma) {
            case oracolo::Forma::piana:
                motore.Calcola_Tempo_Flusso(r.modo);
                break;
            case oracolo::Forma::ipotesi:
                motore.Calcola_Tempo_Flusso(indice, g, r.modo);
                break;
            case oracolo::Forma::corsie:
                motore.Calcola_Tempo_Flusso_DX(r.modo, r.corsie);
                break;
        }
    } else {
        switch (r.forma) {
            case oracolo::Forma::piana:
                motore.Calcola_Tempo_Flusso_ST(r.modo);
                break;
            case oracolo::Forma::ipotesi:
                motore.Calcola_Tempo_Flusso_ST(indice, g, r.modo);
                break;
            case oracolo::Forma::corsie:
                motore.Calcola_Tempo_Flusso_ST_DX(r.modo, r.corsie);
                break;
        }
    }
    blocchi = std::filesystem::exists(log) ? blocchiDi(contenuto(log)) : std::vector<Blocco>{};
    guasto = blocchi.empty() ? 0 : blocchi.back().numero;
    const auto& mostrati = finta.messaggi.mostrati;
    metodo = mostrati.empty() ? "" : mostrati[0].titolo.substr(std::string("KELVO 2014").size());
    descrizione = mostrati.empty() ? "" : mostrati[0].testo;
}

std::string Banco::confrontaGuasto(const Corsa& corsa) const {
    const std::size_t messaggi = finta.messaggi.mostrati.size();
    if (messaggi != (atteso.guasto == 0 ? 0U : 1U)) {
        return fmt::format("{}: fault {} expected, {} messages shown: {}", corsa.nome(), atteso.guasto, messaggi,
                           descrizione);
    }
    if (atteso.guasto == oracolo::nonConverge && descrizione != "Il bilanciamento non converge") {
        return fmt::format("{}: expected a sweep without end, found '{}'", corsa.nome(), descrizione);
    }
    if (atteso.guasto > 0) {
        const std::string parole{paroleGuasto(static_cast<NumeroGuasto>(atteso.guasto))};
        if (guasto != atteso.guasto || descrizione.rfind(parole, 0) != 0) {
            return fmt::format("{}: fault {} expected, found {} '{}'", corsa.nome(), atteso.guasto, guasto,
                               descrizione);
        }
    }
    if (atteso.guasto != 0 && metodo != corsa.metodo()) {
        return fmt::format("{}: fault reported under '{}'", corsa.nome(), metodo);
    }
    const std::string log = confrontaLog();
    return log.empty() ? "" : fmt::format("{}: {}", corsa.nome(), log);
}

std::string Banco::confrontaLog() const {
    if (blocchi.size() != (atteso.guasto == 0 ? 0U : 1U)) {
        return fmt::format("{} blocks in the log", blocchi.size());
    }
    const std::string riga = fmt::format("Errore nel modulo:  - Metodo: {} - Descrizione: {}", metodo, descrizione);
    if (!blocchi.empty() && blocchi[0].riga != riga) {
        return fmt::format("logged '{}' for '{}'", blocchi[0].riga, riga);
    }
    return {};
}

std::string Banco::confronta(const Corsa& corsa) {
    oracolo::Progetto a = oracolo::leggi(finta.app, motore.QuoteSvoltaDX());
    const Timbro prima = rotonda().timbro();
    atteso = interroga(a, corsa);
    esegui(corsa);
    const oracolo::Progetto b = oracolo::leggi(finta.app, motore.QuoteSvoltaDX());

    const std::string diversita = confrontaGuasto(corsa);
    if (!diversita.empty()) {
        return diversita;
    }
    for (std::size_t i = 0; i < a.ingressi.size(); ++i) {
        const std::string esito =
            confrontaIngresso(fmt::format("{}: leg {}", corsa.nome(), i + 1), a.ingressi[i], b.ingressi[i]);
        if (!esito.empty()) {
            return esito;
        }
    }
    for (std::size_t k = 0; k < 4; ++k) {
        if (!(a.quoteDX[k] == b.quoteDX[k])) {
            return diverso(fmt::format("{}: QuoteSvoltaDX {}", corsa.nome(), k), a.quoteDX[k], b.quoteDX[k]);
        }
    }
    const Timbro timbro = timbroAtteso(prima, finta.app, corsa, atteso);
    if (!(rotonda().timbro() == timbro)) {
        return fmt::format("{}: stamp {}/{} expected, found {}/{}", corsa.nome(), static_cast<int>(timbro.forma),
                           timbro.revisione, static_cast<int>(rotonda().timbro().forma), rotonda().timbro().revisione);
    }
    return {};
}

}  // namespace kelvo::prove

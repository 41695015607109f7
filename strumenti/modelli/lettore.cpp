#include <fmt/format.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include "modelli/Modello.h"

namespace kelvo::modelli {

namespace {

namespace fs = std::filesystem;

std::string rifilato(const std::string& testo) {
    const auto da = testo.find_first_not_of(" \t\r");
    return da == std::string::npos ? std::string{} : testo.substr(da, testo.find_last_not_of(" \t\r") - da + 1);
}

bool comincia(const std::string& testo, std::string_view con) {
    return testo.compare(0, con.size(), con) == 0;
}

/// The first word of a line and what follows it.
struct Comando {
    std::string nome;
    std::string resto;
};

Comando comandoDi(const std::string& riga) {
    const auto spazio = riga.find(' ');
    return {riga.substr(0, spazio), spazio == std::string::npos ? std::string{} : rifilato(riga.substr(spazio))};
}

std::vector<std::string> celleDi(const std::string& testo) {
    std::vector<std::string> celle;
    std::istringstream flusso(testo);
    for (std::string cella; std::getline(flusso, cella, '|');) {
        celle.push_back(rifilato(cella));
    }
    if (!testo.empty() && testo.back() == '|') {
        celle.emplace_back();
    }
    return celle;
}

class Lettore {
public:
    Lettore(fs::path percorso, std::vector<Blocco>& blocchi) : percorso_(std::move(percorso)), blocchi_(blocchi) {}

    void leggi() {
        std::ifstream file(percorso_);
        if (!file) {
            throw std::runtime_error(fmt::format("{}: il file non si apre", percorso_.string()));
        }
        for (std::string riga; std::getline(file, riga);) {
            ++numero_;
            tratta(rifilato(riga));
        }
        chiudiParagrafo();
        if (inTabella_ || !sezioni_.empty()) {
            sbaglio("manca @fine");
        }
    }

private:
    [[noreturn]] void sbaglio(const std::string& parole) const {
        throw std::runtime_error(fmt::format("{}:{}: {}", percorso_.string(), numero_, parole));
    }

    void tratta(const std::string& riga) {
        if (comincia(riga, "#")) {
            return;
        }
        if (inTabella_) {
            trattaTabella(riga);
        } else if (comincia(riga, "@")) {
            chiudiParagrafo();
            trattaComando(comandoDi(riga));
        } else if (riga.empty()) {
            chiudiParagrafo();
        } else {
            trattaTesto(riga);
        }
    }

    void trattaTesto(const std::string& riga) {
        struct Inizio {
            std::string_view segno;
            const char* stile;
            Blocco::Genere genere;
            int livello;
        };
        static constexpr Inizio inizi[] = {{"= ", "", Blocco::Genere::titolo, 1},
                                           {"== ", "", Blocco::Genere::titolo, 2},
                                           {"- ", "Punto", Blocco::Genere::paragrafo, 0},
                                           {"$ ", "Formula", Blocco::Genere::paragrafo, 0}};
        for (const Inizio& inizio : inizi) {
            if (comincia(riga, inizio.segno)) {
                chiudiParagrafo();
                apri({.genere = inizio.genere,
                      .nome = inizio.stile,
                      .testo = rifilato(riga.substr(inizio.segno.size())),
                      .livello = inizio.livello});
                return;
            }
        }
        if (comincia(riga, "[") && riga.find("] ") != std::string::npos) {
            chiudiParagrafo();
            const auto fine = riga.find("] ");
            apri({.nome = riga.substr(1, fine - 1), .testo = rifilato(riga.substr(fine + 2))});
        } else if (aperto_) {
            blocchi_.back().testo += " " + riga;
        } else {
            apri({.testo = riga});
        }
    }

    void apri(Blocco blocco) {
        blocchi_.push_back(std::move(blocco));
        aperto_ = true;
    }
    void chiudiParagrafo() { aperto_ = false; }

    void trattaComando(const Comando& comando) {
        if (comando.nome == "@includi") {
            Lettore(percorso_.parent_path() / comando.resto, blocchi_).leggi();
        } else if (comando.nome == "@sezione") {
            sezioni_.push_back(comando.resto);
            blocchi_.push_back({.genere = Blocco::Genere::apre, .nome = comando.resto});
        } else if (comando.nome == "@punto") {
            blocchi_.push_back({.genere = Blocco::Genere::punto, .nome = comando.resto});
        } else if (comando.nome == "@pagina") {
            blocchi_.push_back({.genere = Blocco::Genere::pagina});
        } else if (comando.nome == "@indice") {
            blocchi_.push_back({.genere = Blocco::Genere::indice});
        } else if (comando.nome == "@tabella") {
            blocchi_.push_back({.genere = Blocco::Genere::tabella});
            blocchi_.back().tabella.segnalibro = comando.resto;
            inTabella_ = true;
            altezza_ = 0.0;
        } else if (comando.nome == "@fine" && !sezioni_.empty()) {
            blocchi_.push_back({.genere = Blocco::Genere::chiude, .nome = sezioni_.back()});
            sezioni_.pop_back();
        } else {
            sbaglio("comando sconosciuto: " + comando.nome);
        }
    }

    void trattaTabella(const std::string& riga) {
        TabellaModello& tabella = blocchi_.back().tabella;
        const Comando comando = comandoDi(riga);
        if (riga.empty()) {
            return;
        }
        if (comando.nome == "@fine") {
            inTabella_ = false;
            controlla(tabella);
        } else if (comando.nome == "stile") {
            tabella.stile = comando.resto;
        } else if (comando.nome == "corpo") {
            tabella.corpo = numero(comando.resto);
        } else if (comando.nome == "didascalia") {
            tabella.didascalia = comando.resto;
        } else if (comando.nome == "colonne") {
            for (const std::string& mm : parole(comando.resto)) {
                tabella.colonneMm.push_back(numero(mm));
            }
        } else if (comando.nome == "allinea") {
            for (const std::string& lettera : parole(comando.resto)) {
                tabella.allineamento += lettera;
            }
        } else if (comando.nome == "altezza") {
            altezza_ = numero(comando.resto);
        } else {
            trattaRiga(tabella, comando);
        }
    }

    void trattaRiga(TabellaModello& tabella, const Comando& comando) {
        using Genere = TabellaModello::Genere;
        if (comando.nome == "testata" || comando.nome == "riga") {
            const Genere genere = comando.nome == "riga" ? Genere::riga : Genere::testata;
            tabella.righe.push_back({genere, altezza_, celleDi(comando.resto)});
        } else if (comando.nome == "unita") {
            tabella.righe.push_back({Genere::unita, altezza_, {}});
        } else if (comando.nome == "righe") {
            for (int i = 0; i < static_cast<int>(numero(comando.resto)); ++i) {
                tabella.righe.push_back({Genere::vuota, altezza_, {}});
            }
        } else {
            sbaglio("riga di tabella sconosciuta: " + comando.nome);
        }
    }

    void controlla(const TabellaModello& tabella) const {
        const std::size_t colonne = tabella.colonneMm.size();
        if (colonne == 0 || tabella.allineamento.size() != colonne || tabella.righe.empty()) {
            sbaglio("la tabella chiede colonne, un allineamento per colonna e almeno una riga");
        }
        for (const TabellaModello::Riga& riga : tabella.righe) {
            const bool scritta =
                riga.genere == TabellaModello::Genere::riga || riga.genere == TabellaModello::Genere::testata;
            if (scritta && riga.celle.size() != colonne && riga.celle.size() != 1) {
                sbaglio(fmt::format("una riga ha {} celle su {} colonne", riga.celle.size(), colonne));
            }
        }
    }

    double numero(const std::string& testo) const {
        std::size_t letti = 0;
        double valore = -1.0;
        try {
            valore = std::stod(testo, &letti);
        } catch (const std::exception&) {
            letti = 0;
        }
        if (letti != testo.size() || testo.empty() || valore < 0.0) {
            sbaglio("non è un numero: " + testo);
        }
        return valore;
    }

    static std::vector<std::string> parole(const std::string& testo) {
        std::istringstream flusso(testo);
        std::vector<std::string> trovate;
        for (std::string parola; flusso >> parola;) {
            trovate.push_back(parola);
        }
        return trovate;
    }

    fs::path percorso_;
    std::vector<Blocco>& blocchi_;
    std::vector<std::string> sezioni_;
    int numero_ = 0;
    double altezza_ = 0.0;
    bool inTabella_ = false;
    bool aperto_ = false;
};

}  // namespace

std::vector<Blocco> leggiModello(const std::string& percorso) {
    std::vector<Blocco> blocchi;
    Lettore(percorso, blocchi).leggi();
    return blocchi;
}

}  // namespace kelvo::modelli

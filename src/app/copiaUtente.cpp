#include "app/copiaUtente.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <map>
#include <string_view>

#include "app/FileIni.h"
#include "app/percorsi.h"

namespace kelvo {

namespace fs = std::filesystem;

namespace {

enum class Genere { configurazione, modello, esempio, altro };

/// A folder of the parts that are written; "" is the program's own.
struct Parte {
    std::string_view cartella;
    Genere genere = Genere::altro;
};
constexpr std::string_view cartellaEsempi = "Progetti";
constexpr std::array parti{Parte{"Modelli", Genere::modello}, Parte{"Relazioni"}, Parte{"XLS"},
                           Parte{cartellaEsempi, Genere::esempio}};
constexpr std::string_view nomeIni = "Kelvo.ini";
constexpr std::string_view nomeElenco = "Copia.txt";
constexpr std::string_view capoElenco = "# Che cosa Kelvo ha portato in questa copia: impronta e nome di ogni file.\n";
constexpr std::uint64_t massimo = 64UL * 1024UL * 1024UL;
constexpr std::size_t cifreImpronta = 16;

/// FNV-1a, 64 bits: tells whether a file is still the one that came.
std::string impronta(std::string_view dati) {
    std::uint64_t valore = 14695981039346656037UL;
    for (const char c : dati) {
        valore = (valore ^ static_cast<unsigned char>(c)) * 1099511628211UL;
    }
    return fmt::format("{:016x}", valore);
}

bool esiste(const std::string& percorso) {
    std::error_code ignorato;
    return fs::exists(fs::symlink_status(percorsoDaTesto(percorso), ignorato));
}

bool danneggiato(Genere genere, std::string_view dati) {
    return dati.empty() || (genere == Genere::configurazione && FileIni::codificaNonValida(dati)) ||
           (genere == Genere::modello && !dati.starts_with("PK"));
}

/// Name beside a damaged file to which it makes room; none that stands already is taken.
std::string nomeDanneggiato(const std::string& percorso) {
    std::string nome = percorso + ".danneggiato";
    for (int volta = 2; esiste(nome); ++volta) {
        nome = fmt::format("{}.danneggiato-{}", percorso, volta);
    }
    return nome;
}

/// Names of the regular files of a folder, in order.
std::vector<std::string> fileDi(const std::string& cartella) {
    std::vector<std::string> nomi;
    std::error_code errore;
    for (auto voce = fs::directory_iterator(percorsoDaTesto(cartella), errore);
         !errore && voce != fs::directory_iterator(); voce.increment(errore)) {
        std::error_code ignorato;
        if (voce->is_regular_file(ignorato)) {
            nomi.push_back(testoDaPercorso(voce->path().filename()));
        }
    }
    std::sort(nomi.begin(), nomi.end());
    return nomi;
}

class Copia {
public:
    Copia(SistemaFile& sistema, const std::string& programma, const std::string& copia)
        : sistema_(sistema), programma_(programma), copia_(copia) {}

    EsitoCopia esegui() {
        if (preparaCartella(copia_)) {
            leggiElenco();
            porta(programma_, copia_, std::string{nomeIni}, Genere::configurazione);
            for (const Parte& parte : parti) {
                portaCartella(parte);
            }
            scriviElenco();
        }
        const bool fatta = esiste(copia_ + "/" + std::string{nomeIni});
        return {fatta ? copia_ : programma_, std::move(problemi_)};
    }

private:
    static std::string posto(const std::string& cartella, const Parte& parte) {
        const bool esempi = parte.genere == Genere::esempio;
        return esempi ? cartellaProgetti(cartella)
                      : testoDaPercorso(percorsoDaTesto(cartella) / percorsoDaTesto(parte.cartella));
    }

    bool preparaCartella(const std::string& cartella) {
        std::error_code errore;
        const fs::path percorso = percorsoDaTesto(cartella);
        fs::create_directories(percorso, errore);
        std::error_code ignorato;
        if (fs::is_directory(percorso, ignorato)) {
            return true;
        }
        dici(cartella, errore ? paroleErrore(errore) : "non è una cartella");
        return false;
    }

    void portaCartella(const Parte& parte) {
        const std::string da = posto(programma_, parte);
        const std::string a = posto(copia_, parte);
        const bool tutta = !esiste(a);
        if (!preparaCartella(a)) {
            return;
        }
        for (const std::string& nome : fileDi(da)) {
            const std::string chiave = std::string{parte.cartella} + "/" + nome;
            const bool tolto = parte.genere == Genere::esempio && !tutta && elenco_.contains(chiave);
            if (!tolto || esiste(testoDaPercorso(percorsoDaTesto(a) / percorsoDaTesto(nome)))) {
                porta(da, a, nome, parte.genere, chiave);
            }
        }
    }

    void porta(const std::string& da, const std::string& a, const std::string& nome, Genere genere,
               const std::string& chiave = std::string{nomeIni}) {
        const std::string fonte = testoDaPercorso(percorsoDaTesto(da) / percorsoDaTesto(nome));
        const std::string meta = testoDaPercorso(percorsoDaTesto(a) / percorsoDaTesto(nome));
        std::string fornito;
        std::string suo;
        std::string errore = leggiFile(fonte, massimo, fornito);
        if (!errore.empty()) {
            dici(fonte, errore);
            return;
        }
        const bool manca = !esiste(meta);
        errore = manca ? std::string{} : leggiFile(meta, massimo, suo);
        if (!errore.empty()) {
            dici(meta, errore);
            return;
        }
        if (!manca && fornito != suo && danneggiato(genere, fornito)) {
            dici(fonte, "il file è danneggiato");
            return;
        }
        const std::string voluto = manca ? fornito : contenutoVoluto(genere, chiave, fornito, suo);
        if (!manca && voluto != suo && danneggiato(genere, suo) && !suo.empty()) {
            errore = sistema_.rinomina(meta, nomeDanneggiato(meta));
        }
        if (errore.empty() && (manca || voluto != suo)) {
            errore = scriviFileSicuro(sistema_, meta, voluto);
        }
        if (errore.empty()) {
            elenco_[chiave] = impronta(fornito);
        } else {
            dici(meta, errore);
        }
    }

    /// What a file of the copy has to hold, the user's own work kept.
    std::string contenutoVoluto(Genere genere, const std::string& chiave, const std::string& fornito,
                                const std::string& suo) const {
        const auto venuto = elenco_.find(chiave);
        const bool intatto = venuto != elenco_.end() && venuto->second == impronta(suo);
        if (intatto || danneggiato(genere, suo)) {
            return fornito;
        }
        if (genere != Genere::configurazione) {
            return suo;
        }
        FileIni ini(suo);
        ini.completa(FileIni(fornito));
        return ini.testo();
    }

    std::string percorsoElenco() const { return copia_ + "/" + std::string{nomeElenco}; }

    void leggiElenco() {
        leggiFile(percorsoElenco(), massimo, elencoLetto_);
        for (std::string_view resto = elencoLetto_; !resto.empty();) {
            const std::string_view riga = resto.substr(0, resto.find('\n'));
            resto.remove_prefix(std::min(riga.size() + 1, resto.size()));
            if (riga.size() > cifreImpronta + 1 && riga[cifreImpronta] == ' ' && riga.front() != '#') {
                elenco_.emplace(riga.substr(cifreImpronta + 1), riga.substr(0, cifreImpronta));
            }
        }
    }

    void scriviElenco() {
        std::string testo{capoElenco};
        for (const auto& [nome, segno] : elenco_) {
            testo += fmt::format("{} {}\n", segno, nome);
        }
        if (testo != elencoLetto_) {
            const std::string errore = scriviFileSicuro(sistema_, percorsoElenco(), testo);
            if (!errore.empty()) {
                dici(percorsoElenco(), errore);
            }
        }
    }

    void dici(const std::string& percorso, const std::string& motivo) {
        problemi_.push_back(fmt::format("{}: {}", percorso, motivo));
    }

    SistemaFile& sistema_;
    const std::string& programma_;
    const std::string& copia_;
    std::string elencoLetto_;
    std::map<std::string, std::string> elenco_;  ///< what each file was when it came
    std::vector<std::string> problemi_;
};

}  // namespace

EsitoCopia aggiornaCopiaUtente(SistemaFile& sistema, const std::string& programma, const std::string& copia) {
    return Copia(sistema, programma, copia).esegui();
}

std::string cartellaCopiata(const std::string& programma, const std::string& copia) {
    return !copia.empty() && esiste(copia + "/" + std::string{nomeIni}) ? copia : programma;
}

}  // namespace kelvo

#include "app/FileIni.h"

#include <fmt/format.h>

#include "base/guasto.h"
#include "base/testo.h"

namespace kelvo {

namespace {

constexpr std::string_view bom = "\xEF\xBB\xBF";

bool uguali(std::string_view a, std::string_view b) {
    return maiuscoleAscii(rifila(a)) == maiuscoleAscii(rifila(b));
}

/// Name of the section that a line opens.
std::optional<std::string_view> sezioneDi(std::string_view riga) {
    riga = rifila(riga);
    const auto fine = riga.find(']');
    if (riga.empty() || riga.front() != '[' || fine == std::string_view::npos) {
        return std::nullopt;
    }
    return riga.substr(1, fine - 1);
}

struct Coppia {
    std::string_view chiave;
    std::string_view valore;
};

std::optional<Coppia> coppiaDi(std::string_view riga) {
    riga = rifila(riga);
    if (riga.empty() || riga.front() == ';' || riga.front() == '#') {
        return std::nullopt;
    }
    const auto uguale = riga.find('=');
    if (uguale == std::string_view::npos) {
        return std::nullopt;
    }
    std::string_view valore = rifila(riga.substr(uguale + 1));
    if (valore.size() >= 2 && valore.front() == '"' && valore.back() == '"') {
        valore = valore.substr(1, valore.size() - 2);
    }
    return Coppia{rifila(riga.substr(0, uguale)), valore};
}

/// A pair written under these names would be found again.
bool nomiValidi(std::string_view sezione, std::string_view chiave) {
    const auto pulito = [](std::string_view nome, std::string_view vietati) {
        return rifila(nome) == nome && nome.find_first_of(vietati) == std::string_view::npos;
    };
    const bool commento = !chiave.empty() && (chiave.front() == ';' || chiave.front() == '#' || chiave.front() == '[');
    return !chiave.empty() && !commento && pulito(sezione, "]\r\n") && pulito(chiave, "=\r\n");
}

void controllaNomi(std::string_view sezione, std::string_view chiave) {
    if (!nomiValidi(sezione, chiave)) {
        throw Guasto(NumeroGuasto::chiamataNonValida, fmt::format("[{}] {}", utf8Valido(sezione), utf8Valido(chiave)));
    }
}

/// The value as it stands in the file: on one line, in quotes where its ends would be lost.
std::string valoreScritto(std::string_view valore) {
    std::string testo{valore};
    for (char& c : testo) {
        c = c == '\r' || c == '\n' ? ' ' : c;
    }
    const bool virgolette = testo.size() >= 2 && testo.front() == '"' && testo.back() == '"';
    return virgolette || rifila(testo) != testo ? '"' + testo + '"' : testo;
}

}  // namespace

bool FileIni::codificaNonValida(std::string_view testo) {
    return testo.starts_with("\xFF\xFE") || testo.starts_with("\xFE\xFF") || testo.find('\0') != std::string_view::npos;
}

FileIni::FileIni(std::string_view testo) {
    if (testo.starts_with(bom)) {
        bom_ = true;
        testo.remove_prefix(bom.size());
    }
    while (!testo.empty()) {
        const auto capo = testo.find('\n');
        const std::size_t lunga = capo == std::string_view::npos ? testo.size() : capo + 1;
        const std::string_view riga = testo.substr(0, lunga);
        std::size_t fine = capo == std::string_view::npos ? 0 : 1;
        if (fine == 1 && riga.ends_with("\r\n")) {
            fine = 2;
        }
        righe_.push_back({std::string{riga.substr(0, lunga - fine)}, std::string{riga.substr(lunga - fine)}});
        testo.remove_prefix(lunga);
    }
}

FileIni::Posto FileIni::cerca(std::string_view sezione, std::string_view chiave) const {
    Posto posto;
    bool dentro = false;
    for (std::size_t i = 0; i < righe_.size(); ++i) {
        if (const auto nome = sezioneDi(righe_[i].testo)) {
            dentro = uguali(*nome, sezione);
            if (dentro) {
                posto.sezioneTrovata = true;
                posto.inserimento = i + 1;
            }
        } else if (const auto coppia = coppiaDi(righe_[i].testo); dentro && coppia) {
            if (uguali(coppia->chiave, chiave)) {
                posto.riga = i;
                return posto;
            }
            posto.inserimento = i + 1;
        }
    }
    return posto;
}

std::optional<std::string> FileIni::leggi(std::string_view sezione, std::string_view chiave) const {
    const Posto posto = cerca(sezione, chiave);
    if (!posto.riga) {
        return std::nullopt;
    }
    return std::string{coppiaDi(righe_[*posto.riga].testo)->valore};
}

void FileIni::inserisci(std::size_t posto, const std::string& testo) {
    // The new line ends as the one in front of it does.
    std::string fine{fineRiga};
    for (std::size_t i = 0; i < posto; ++i) {
        fine = righe_[i].fine.empty() ? fine : righe_[i].fine;
    }
    if (posto > 0 && righe_[posto - 1].fine.empty()) {
        righe_[posto - 1].fine = fine;
    }
    righe_.insert(righe_.begin() + static_cast<std::ptrdiff_t>(posto), Riga{testo, fine});
}

void FileIni::scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore) {
    controllaNomi(sezione, chiave);
    const std::string scritto = valoreScritto(valore);
    const Posto posto = cerca(sezione, chiave);
    if (posto.riga) {
        std::string& riga = righe_[*posto.riga].testo;
        riga.resize(riga.find('=') + 1);
        riga += scritto;
    } else if (posto.sezioneTrovata) {
        inserisci(posto.inserimento, fmt::format("{}={}", chiave, scritto));
    } else {
        inserisci(righe_.size(), fmt::format("[{}]", sezione));
        inserisci(righe_.size(), fmt::format("{}={}", chiave, scritto));
    }
}

void FileIni::completa(const FileIni& fornito) {
    std::optional<std::string_view> sezione;
    for (const Riga& riga : fornito.righe_) {
        if (const auto nome = sezioneDi(riga.testo)) {
            sezione = rifila(*nome);
        } else if (const auto coppia = coppiaDi(riga.testo); sezione && coppia && !coppia->valore.empty() &&
                                                             nomiValidi(*sezione, coppia->chiave) &&
                                                             leggi(*sezione, coppia->chiave).value_or("").empty()) {
            scrivi(*sezione, coppia->chiave, coppia->valore);
        }
    }
}

std::string FileIni::testo() const {
    std::string testo{bom_ ? bom : std::string_view{}};
    for (const Riga& riga : righe_) {
        testo.append(riga.testo).append(riga.fine);
    }
    return testo;
}

}  // namespace kelvo

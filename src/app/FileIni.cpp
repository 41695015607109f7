#include "app/FileIni.h"

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

}  // namespace

FileIni::FileIni(std::string_view testo) {
    if (testo.starts_with(bom)) {
        bom_ = true;
        testo.remove_prefix(bom.size());
    }
    if (testo.find('\n') != std::string_view::npos && testo.find("\r\n") == std::string_view::npos) {
        fineRiga_ = "\n";
    }
    while (!testo.empty()) {
        const auto fine = testo.find('\n');
        std::string_view riga = testo.substr(0, fine);
        testo.remove_prefix(fine == std::string_view::npos ? testo.size() : fine + 1);
        if (!riga.empty() && riga.back() == '\r') {
            riga.remove_suffix(1);
        }
        righe_.emplace_back(riga);
    }
}

FileIni::Posto FileIni::cerca(std::string_view sezione, std::string_view chiave) const {
    Posto posto;
    bool dentro = false;
    for (std::size_t i = 0; i < righe_.size(); ++i) {
        if (const auto nome = sezioneDi(righe_[i])) {
            dentro = uguali(*nome, sezione);
            if (dentro && !posto.sezioneTrovata) {
                posto.sezioneTrovata = true;
                posto.inserimento = i + 1;
            } else if (posto.sezioneTrovata && !dentro) {
                continue;
            }
        } else if (dentro) {
            const auto coppia = coppiaDi(righe_[i]);
            if (coppia && uguali(coppia->chiave, chiave)) {
                posto.riga = i;
                return posto;
            }
            if (coppia) {
                posto.inserimento = i + 1;
            }
        }
    }
    return posto;
}

std::optional<std::string> FileIni::leggi(std::string_view sezione, std::string_view chiave) const {
    const Posto posto = cerca(sezione, chiave);
    if (!posto.riga) {
        return std::nullopt;
    }
    return std::string{coppiaDi(righe_[*posto.riga])->valore};
}

void FileIni::scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore) {
    std::string riga{chiave};
    riga.push_back('=');
    for (const char c : valore) {
        riga.push_back(c == '\r' || c == '\n' ? ' ' : c);
    }
    const Posto posto = cerca(sezione, chiave);
    if (posto.riga) {
        righe_[*posto.riga] = riga;
    } else if (posto.sezioneTrovata) {
        righe_.insert(righe_.begin() + static_cast<std::ptrdiff_t>(posto.inserimento), riga);
    } else {
        std::string titolo = "[";
        titolo.append(sezione).append("]");
        righe_.push_back(titolo);
        righe_.push_back(riga);
    }
}

std::string FileIni::testo() const {
    std::string testo{bom_ ? bom : std::string_view{}};
    for (const std::string& riga : righe_) {
        testo.append(riga).append(fineRiga_);
    }
    return testo;
}

}  // namespace kelvo

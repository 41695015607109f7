#include "reports/zip.h"

#include <zip.h>

#include <algorithm>
#include <array>
#include <memory>
#include <set>
#include <string_view>

#include "base/testo.h"

namespace kelvo::ooxml {

namespace {

// The zip format's first day: archives carry no time of their own.
constexpr zip_uint16_t primoGiorno = 0x21;

struct Scarta {
    void operator()(zip_t* archivio) const { zip_discard(archivio); }
};
struct Chiudi {
    void operator()(zip_file_t* file) const { zip_fclose(file); }
};
struct Libera {
    void operator()(zip_source_t* fonte) const { zip_source_free(fonte); }
};
using Archivio = std::unique_ptr<zip_t, Scarta>;
using File = std::unique_ptr<zip_file_t, Chiudi>;
using Fonte = std::unique_ptr<zip_source_t, Libera>;

constexpr std::string_view danneggiato = "l'archivio è danneggiato";
constexpr std::string_view nonScritto = "l'archivio non è stato composto";

/// True for a name that stays inside the archive.
bool nomeSano(std::string_view nome) {
    if (nome.empty() || nome.front() == '/' || nome.find('\\') != std::string_view::npos ||
        nome.find(':') != std::string_view::npos || parteValida(nome) != nome.size()) {
        return false;
    }
    const std::string chiuso = "/" + std::string(nome) + "/";
    return chiuso.find("/../") == std::string::npos && chiuso.find("/./") == std::string::npos;
}

/// Reads one file, whatever size its heading tells.
std::string leggiVoce(zip_t* archivio, zip_uint64_t indice, std::uint64_t massimo, std::string& dati) {
    const File file(zip_fopen_index(archivio, indice, 0));
    if (!file) {
        return std::string(danneggiato);
    }
    std::array<char, 65536> blocco{};
    for (;;) {
        const zip_int64_t letti = zip_fread(file.get(), blocco.data(), blocco.size());
        if (letti < 0) {
            return std::string(danneggiato);
        }
        if (letti == 0) {
            return {};
        }
        if (dati.size() + static_cast<std::uint64_t>(letti) > massimo) {
            return "il contenuto è troppo grande";
        }
        dati.append(blocco.data(), static_cast<std::size_t>(letti));
    }
}

std::string paroleApertura(zip_error_t& errore) {
    const bool altro = zip_error_code_zip(&errore) == ZIP_ER_NOZIP;
    zip_error_fini(&errore);
    return altro ? "non è un documento .docx o .dotx" : std::string(danneggiato);
}

std::string leggiVoci(zip_t* archivio, std::vector<Voce>& voci) {
    const zip_int64_t quante = zip_get_num_entries(archivio, 0);
    if (quante < 0 || static_cast<std::size_t>(quante) > massimeVoci) {
        return "ha troppe parti";
    }
    std::set<std::string> nomi;
    std::uint64_t totale = 0;
    for (zip_uint64_t i = 0; i < static_cast<zip_uint64_t>(quante); ++i) {
        zip_stat_t stato{};
        if (zip_stat_index(archivio, i, 0, &stato) != 0 || (stato.valid & ZIP_STAT_NAME) == 0) {
            return std::string(danneggiato);
        }
        const std::string nome = stato.name;
        if (!nomeSano(nome) || !nomi.insert(maiuscoleAscii(nome)).second) {
            return "ha parti con nomi non validi";
        }
        if ((stato.valid & ZIP_STAT_ENCRYPTION_METHOD) != 0 && stato.encryption_method != ZIP_EM_NONE) {
            return "è protetto da una parola d'ordine";
        }
        if (nome.back() == '/') {
            continue;
        }
        Voce voce{nome, {}};
        const std::string errore = leggiVoce(archivio, i, std::min(massimoVoce, massimoTotale - totale), voce.dati);
        if (!errore.empty()) {
            return errore;
        }
        totale += voce.dati.size();
        voci.push_back(std::move(voce));
    }
    return {};
}

/// Pictures are compressed already.
zip_int32_t metodo(std::string_view nome) {
    return nome.size() > 4 && maiuscoleAscii(nome.substr(nome.size() - 4)) == ".PNG" ? ZIP_CM_STORE : ZIP_CM_DEFLATE;
}

bool aggiungi(zip_t* archivio, const Voce& voce) {
    zip_source_t* fonte = zip_source_buffer(archivio, voce.dati.data(), voce.dati.size(), 0);
    if (fonte == nullptr) {
        return false;
    }
    const zip_int64_t indice = zip_file_add(archivio, voce.nome.c_str(), fonte, ZIP_FL_ENC_UTF_8);
    if (indice < 0) {
        zip_source_free(fonte);
        return false;
    }
    const auto posto = static_cast<zip_uint64_t>(indice);
    return zip_set_file_compression(archivio, posto, metodo(voce.nome), 0) == 0 &&
           zip_file_set_dostime(archivio, posto, 0, primoGiorno, 0) == 0;
}

bool leggiFonte(zip_source_t* fonte, std::string& dati) {
    if (zip_source_open(fonte) != 0) {
        return false;
    }
    std::array<char, 65536> blocco{};
    zip_int64_t letti = 0;
    while ((letti = zip_source_read(fonte, blocco.data(), blocco.size())) > 0) {
        dati.append(blocco.data(), static_cast<std::size_t>(letti));
    }
    zip_source_close(fonte);
    return letti == 0;
}

}  // namespace

std::string leggiArchivio(const std::string& dati, std::vector<Voce>& voci) {
    voci.clear();
    zip_error_t errore;
    zip_error_init(&errore);
    zip_source_t* fonte = zip_source_buffer_create(dati.data(), dati.size(), 0, &errore);
    if (fonte == nullptr) {
        return paroleApertura(errore);
    }
    const Archivio archivio(zip_open_from_source(fonte, ZIP_RDONLY, &errore));
    if (!archivio) {
        zip_source_free(fonte);
        return paroleApertura(errore);
    }
    zip_error_fini(&errore);
    return leggiVoci(archivio.get(), voci);
}

std::string scriviArchivio(const std::vector<Voce>& voci, std::string& dati) {
    dati.clear();
    const Fonte fonte(zip_source_buffer_create(nullptr, 0, 0, nullptr));
    if (!fonte) {
        return std::string(nonScritto);
    }
    // The archive takes one hold of the source; ours lasts until it is read back.
    zip_source_keep(fonte.get());
    Archivio archivio(zip_open_from_source(fonte.get(), ZIP_TRUNCATE, nullptr));
    if (!archivio) {
        zip_source_free(fonte.get());
        return std::string(nonScritto);
    }
    for (const Voce& voce : voci) {
        if (!aggiungi(archivio.get(), voce)) {
            return std::string(nonScritto);
        }
    }
    if (zip_close(archivio.get()) != 0) {
        return std::string(nonScritto);
    }
    archivio.release();  // NOLINT(bugprone-unused-return-value): closed above, which frees it
    return leggiFonte(fonte.get(), dati) ? std::string{} : std::string(nonScritto);
}

}  // namespace kelvo::ooxml

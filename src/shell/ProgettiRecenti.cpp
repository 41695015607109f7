#include "shell/ProgettiRecenti.h"

#include <fmt/format.h>

namespace kelvo {

namespace {

constexpr const char* applicazione = "Kelvo";
constexpr const char* sezione = "ProgettiRecenti";

std::string chiave(std::size_t posizione) {
    return fmt::format("File{}", posizione + 1);
}

}  // namespace

ProgettiRecenti::ProgettiRecenti(ImpostazioniUtente& impostazioni) : impostazioni_(impostazioni) {
    for (std::size_t i = 0; i < massimo; ++i) {
        const std::string percorso = impostazioni_.leggi(applicazione, sezione, chiave(i));
        if (!percorso.empty()) {
            elenco_.push_back(percorso);
        }
    }
}

void ProgettiRecenti::aggiungi(const std::string& percorso) {
    std::erase(elenco_, percorso);
    elenco_.insert(elenco_.begin(), percorso);
    if (elenco_.size() > massimo) {
        elenco_.resize(massimo);
    }
    scrivi();
}

void ProgettiRecenti::togli(const std::string& percorso) {
    if (std::erase(elenco_, percorso) != 0) {
        scrivi();
    }
}

void ProgettiRecenti::scrivi() {
    for (std::size_t i = 0; i < massimo; ++i) {
        impostazioni_.scrivi(applicazione, sezione, chiave(i), i < elenco_.size() ? elenco_[i] : std::string{});
    }
}

}  // namespace kelvo

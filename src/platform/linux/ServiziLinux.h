#pragma once

#include <string>

#include "app/serviziSistema.h"

namespace kelvo {

/// The mark of a running program: a lock on a file in the user's own folder, which the system drops with the process.
class IstanzaLinux final : public IstanzaUnica {
public:
    /// `cartella`: a folder of the user's own, made if it is missing.
    explicit IstanzaLinux(std::string cartella) : cartella_(std::move(cartella)) {}
    ~IstanzaLinux() override;
    IstanzaLinux(const IstanzaLinux&) = delete;
    IstanzaLinux& operator=(const IstanzaLinux&) = delete;

    void creaMutex(const std::string& nome) override;
    bool altraIstanza() const override { return altra_; }

private:
    std::string cartella_;
    int file_ = -1;
    bool altra_ = false;
};

/// This system has no separators that a program could set for its user: the program formats its numbers by itself.
class LocaleLinux final : public LocaleUtente {
public:
    ImpostazioniInternazionali leggi() const override;
    void scriviSeparatori(const std::string& /*decimale*/, const std::string& /*migliaia*/) override {}
};

/// The user's own folder for data that the program keeps ("Kelvo" in XDG_DATA_HOME, or in .local/share of HOME); empty
/// where neither is told.
std::string percorsoDatiUtente();
/// The same, made if it is missing; one in the working folder where none is told.
std::string cartellaDatiUtente();

}  // namespace kelvo

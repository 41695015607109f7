#pragma once

#include <unistd.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/file.h"

namespace kelvo::prove {

/// The steps of a safe write, in order.
enum class PassoFile { crea, scrivi, mezzo, sincronizza, chiudi, dimensione, rinomina, sincronizzaCartella };

/// What befalls the writer at a step.
enum class Incidente {
    nessuno,
    errore,  ///< the step fails and answers "incidente"; a write leaves half of its bytes
    corto,   ///< a write leaves half of its bytes and says nothing
    morte,   ///< the process dies in front of the step; at `mezzo`, in the middle of the write
};

/// A file system that works on the one below until the given step.
class FileDifettosi final : public SistemaFile {
public:
    FileDifettosi(SistemaFile& vero, PassoFile passo, Incidente incidente)
        : vero_(vero), passo_(passo), incidente_(incidente) {}

    std::vector<PassoFile> passi;  ///< what was asked for, in order

    std::unique_ptr<FileInScrittura> crea(const std::string& percorso, std::string& errore) override {
        if (!incontra(PassoFile::crea, errore)) {
            return nullptr;
        }
        auto file = vero_.crea(percorso, errore);
        return file ? std::make_unique<File>(*this, std::move(file)) : nullptr;
    }
    std::int64_t dimensione(const std::string& percorso) override {
        std::string errore;
        return incontra(PassoFile::dimensione, errore) ? vero_.dimensione(percorso) : -1;
    }
    std::string rinomina(const std::string& da, const std::string& a) override {
        std::string errore;
        return incontra(PassoFile::rinomina, errore) ? vero_.rinomina(da, a) : errore;
    }
    void elimina(const std::string& percorso) override { vero_.elimina(percorso); }
    void sincronizzaCartella(const std::string& percorso) override {
        std::string errore;
        if (incontra(PassoFile::sincronizzaCartella, errore)) {
            vero_.sincronizzaCartella(percorso);
        }
    }

private:
    class File final : public FileInScrittura {
    public:
        File(FileDifettosi& sistema, std::unique_ptr<FileInScrittura> vero)
            : sistema_(sistema), vero_(std::move(vero)) {}
        std::string scrivi(std::string_view dati) override {
            std::string errore;
            const std::string_view meta = dati.substr(0, dati.size() / 2);
            if (!sistema_.incontra(PassoFile::scrivi, errore)) {
                vero_->scrivi(meta);
                return errore;
            }
            if (sistema_.passo_ == PassoFile::scrivi && sistema_.incidente_ == Incidente::corto) {
                return vero_->scrivi(meta);
            }
            if (sistema_.passo_ == PassoFile::mezzo) {
                vero_->scrivi(meta);
                vero_->sincronizza();
                if (!sistema_.incontra(PassoFile::mezzo, errore)) {
                    return errore;
                }
                return vero_->scrivi(dati.substr(meta.size()));
            }
            return vero_->scrivi(dati);
        }
        std::string sincronizza() override {
            std::string errore;
            return sistema_.incontra(PassoFile::sincronizza, errore) ? vero_->sincronizza() : errore;
        }
        std::string chiudi() override {
            std::string errore;
            const bool passa = sistema_.incontra(PassoFile::chiudi, errore);
            const std::string esito = vero_->chiudi();
            return passa ? esito : errore;
        }

    private:
        FileDifettosi& sistema_;
        std::unique_ptr<FileInScrittura> vero_;
    };

    /// False, with `errore` set, if the step fails.
    bool incontra(PassoFile passo, std::string& errore) {
        passi.push_back(passo);
        if (passo != passo_) {
            return true;
        }
        if (incidente_ == Incidente::morte) {
            ::_exit(9);
        }
        errore = incidente_ == Incidente::errore ? "incidente" : "";
        return incidente_ != Incidente::errore;
    }

    SistemaFile& vero_;
    PassoFile passo_;
    Incidente incidente_;
};

}  // namespace kelvo::prove

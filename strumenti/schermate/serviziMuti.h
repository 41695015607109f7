#pragma once

#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "app/servizi.h"
#include "app/serviziSistema.h"
#include "base/date.h"

/// The outside of a program that nobody sits at: nothing is asked, nothing of the user's own is read or written.
namespace kelvo::schermate {

/// The time of the system, or one that stands still: what is pictured then does not hang on the day.
class OrologioMuto final : public Orologio {
public:
    explicit OrologioMuto(bool fermo) : fermo_(fermo) {}
    DataOra adesso() override {
        constexpr double mattino = 10.5 / 24.0;
        return fermo_ ? leggiData("16/09/2026").value_or(0.0) + mattino : kelvo::adesso();
    }

private:
    bool fermo_;
};

/// Keeps what was told; every question gets the answer that changes least.
class MessaggiMuti final : public FinestraMessaggi {
public:
    Risposta mostra(const std::string& testo, const std::string& titolo, Icona /*icona*/, Pulsanti pulsanti) override {
        detti.push_back(titolo + ": " + testo);
        switch (pulsanti) {
            case Pulsanti::ok:
                return Risposta::ok;
            case Pulsanti::siNo:
                return Risposta::no;
            case Pulsanti::okAnnulla:
            case Pulsanti::siNoAnnulla:
                break;
        }
        return Risposta::annulla;
    }
    std::vector<std::string> detti;
};

/// File dialogues that are cancelled.
class DialogoMuto final : public DialogoFile {
public:
    std::optional<std::string> apri(const RichiestaFile& /*richiesta*/,
                                    const std::function<void(const std::string&)>& /*alCambio*/) override {
        return std::nullopt;
    }
    std::optional<std::string> salva(const RichiestaFile& /*richiesta*/) override { return std::nullopt; }
};

/// Keeps what was put there.
class AppuntiMuti final : public Appunti {
public:
    void scrivi(const std::string& testo) override { testo_ = testo; }
    std::string leggi() const override { return testo_; }

private:
    std::string testo_;
};

/// Opens and starts nothing.
class DocumentiMuti final : public ApriDocumenti {
public:
    bool apri(const std::string& /*percorso*/) override { return false; }
    bool avvia(const std::string& /*programma*/, const std::string& /*argomento*/) override { return false; }
};

/// Settings that are forgotten at the end.
class ImpostazioniMute final : public ImpostazioniUtente {
public:
    void scrivi(const std::string& applicazione, const std::string& sezione, const std::string& chiave,
                const std::string& valore) override {
        valori_[{applicazione, sezione, chiave}] = valore;
    }
    std::string leggi(const std::string& applicazione, const std::string& sezione,
                      const std::string& chiave) const override {
        const auto trovato = valori_.find({applicazione, sezione, chiave});
        return trovato == valori_.end() ? std::string{} : trovato->second;
    }

private:
    std::map<std::tuple<std::string, std::string, std::string>, std::string> valori_;
};

/// A clock that never strikes.
class CronometroMuto final : public Cronometro {
public:
    void ogni(int /*millisecondi*/, const std::function<void()>& /*cosa*/) override {}
    void ferma() override {}
};

}  // namespace kelvo::schermate

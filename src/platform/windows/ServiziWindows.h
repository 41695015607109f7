#pragma once

#include <memory>
#include <string>

#include "app/serviziSistema.h"

namespace kelvo {

/// The mark of a running program: a named mutex of the user's session. Its handle is kept until the end of the
/// process, with which the system drops it.
class IstanzaWindows final : public IstanzaUnica {
public:
    void creaMutex(const std::string& nome) override;
    bool altraIstanza() const override { return altra_; }

private:
    struct Chiude {
        void operator()(void* maniglia) const;
    };
    std::unique_ptr<void, Chiude> mutex_;
    bool altra_ = false;
};

/// The user's regional settings, which every program of the user's sees.
class LocaleWindows final : public LocaleUtente {
public:
    /// A text that the system does not give, or of more than 98 characters, is empty.
    ImpostazioniInternazionali leggi() const override;
    void scriviSeparatori(const std::string& decimale, const std::string& migliaia) override;
};

/// The user's settings in the user's own registry: HKEY_CURRENT_USER\Software\Kelvo\<application>\<section>, each
/// value a text. Those of "KelvoCAD 2014", which the macros of the companion read, stand below
/// HKEY_CURRENT_USER\Software\VB and VBA Program Settings instead.
class ImpostazioniWindows final : public ImpostazioniUtente {
public:
    void scrivi(const std::string& applicazione, const std::string& sezione, const std::string& chiave,
                const std::string& valore) override;
    std::string leggi(const std::string& applicazione, const std::string& sezione,
                      const std::string& chiave) const override;
};

/// Opens documents and starts programs through the system's shell, which shows no box of its own for a failure.
class ApriDocumentiWindows final : public ApriDocumenti {
public:
    bool apri(const std::string& percorso) override;
    /// `programma`: with or without double quotes, blanks at its ends do not count. `argomento`: the rest of the
    /// command line, which goes as it stands, blanks included and without quotes around it; empty for none.
    bool avvia(const std::string& programma, const std::string& argomento) override;
};

}  // namespace kelvo

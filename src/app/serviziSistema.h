#pragma once

#include <functional>
#include <optional>
#include <string>

namespace kelvo {

/// What a file dialogue is asked for.
struct RichiestaFile {
    std::string estensione;  ///< default extension, without a point
    std::string filtro;      ///< pairs of words and pattern, all separated by "|"
    std::string cartella;    ///< where it starts
    std::string nome;        ///< proposed file name; empty for none
    int flag = 2054;         ///< no read-only box, ask before overwriting, the path must exist
};

/// Common file dialogues.
class DialogoFile {
public:
    DialogoFile() = default;
    DialogoFile(const DialogoFile&) = delete;
    DialogoFile& operator=(const DialogoFile&) = delete;
    virtual ~DialogoFile() = default;

    /// The path chosen, or nothing after Cancel. `alCambio` is told each change of the selection, for a preview.
    virtual std::optional<std::string> apri(const RichiestaFile& richiesta,
                                            const std::function<void(const std::string&)>& alCambio) = 0;
    virtual std::optional<std::string> salva(const RichiestaFile& richiesta) = 0;
};

/// Opens documents and starts programs through the system.
class ApriDocumenti {
public:
    ApriDocumenti() = default;
    ApriDocumenti(const ApriDocumenti&) = delete;
    ApriDocumenti& operator=(const ApriDocumenti&) = delete;
    virtual ~ApriDocumenti() = default;

    /// Opens a document with the program that belongs to it; waits for nothing. Double quotes around the path are
    /// taken off. An address that begins with "https://" or "http://", percent-encoded, goes to the browser. False if
    /// it could not.
    virtual bool apri(const std::string& percorso) = 0;
    /// Starts a program; waits for nothing. False if it could not.
    virtual bool avvia(const std::string& programma, const std::string& argomento) = 0;
};

/// The user's own settings, kept from run to run.
class ImpostazioniUtente {
public:
    ImpostazioniUtente() = default;
    ImpostazioniUtente(const ImpostazioniUtente&) = delete;
    ImpostazioniUtente& operator=(const ImpostazioniUtente&) = delete;
    virtual ~ImpostazioniUtente() = default;

    virtual void scrivi(const std::string& applicazione, const std::string& sezione, const std::string& chiave,
                        const std::string& valore) = 0;
    /// Empty text for a missing key.
    virtual std::string leggi(const std::string& applicazione, const std::string& sezione,
                              const std::string& chiave) const = 0;
};

/// Tells whether another instance of the program is running.
class IstanzaUnica {
public:
    IstanzaUnica() = default;
    IstanzaUnica(const IstanzaUnica&) = delete;
    IstanzaUnica& operator=(const IstanzaUnica&) = delete;
    virtual ~IstanzaUnica() = default;

    /// Makes the named mark of this run, kept until the process ends.
    virtual void creaMutex(const std::string& nome) = 0;
    virtual bool altraIstanza() const = 0;
};

/// The user's regional number settings.
struct ImpostazioniInternazionali {
    std::string valuta;                ///< currency symbol
    std::string valutaInternazionale;  ///< international symbol
    std::string decimale;
    std::string migliaia;
    std::string decimaleValuta;
    std::string migliaiaValuta;
};

/// Reads and writes them, where the system has any that the program could change.
class LocaleUtente {
public:
    LocaleUtente() = default;
    LocaleUtente(const LocaleUtente&) = delete;
    LocaleUtente& operator=(const LocaleUtente&) = delete;
    virtual ~LocaleUtente() = default;

    /// Where there is nothing to change, comma and point: the program formats its numbers by itself.
    virtual ImpostazioniInternazionali leggi() const = 0;
    virtual void scriviSeparatori(const std::string& decimale, const std::string& migliaia) = 0;
};

/// Calls back at regular times, between the user's gestures.
class Cronometro {
public:
    Cronometro() = default;
    Cronometro(const Cronometro&) = delete;
    Cronometro& operator=(const Cronometro&) = delete;
    virtual ~Cronometro() = default;

    /// Calls `cosa` every so many milliseconds until `ferma`; replaces what ran before.
    virtual void ogni(int millisecondi, const std::function<void()>& cosa) = 0;
    virtual void ferma() = 0;
};

/// The clipboard of the system, for texts.
class Appunti {
public:
    Appunti() = default;
    Appunti(const Appunti&) = delete;
    Appunti& operator=(const Appunti&) = delete;
    virtual ~Appunti() = default;

    virtual void scrivi(const std::string& testo) = 0;
    /// Empty where there is no text.
    virtual std::string leggi() const = 0;
};

/// The clipboard of the system, for pictures.
class AppuntiImmagini {
public:
    AppuntiImmagini() = default;
    AppuntiImmagini(const AppuntiImmagini&) = delete;
    AppuntiImmagini& operator=(const AppuntiImmagini&) = delete;
    virtual ~AppuntiImmagini() = default;

    /// Puts a picture there, the content of a PNG file; false if it could not.
    virtual bool scrivi(const std::string& png) = 0;
};

/// Waiting and the events that wait meanwhile.
class Attesa {
public:
    Attesa() = default;
    Attesa(const Attesa&) = delete;
    Attesa& operator=(const Attesa&) = delete;
    virtual ~Attesa() = default;

    /// Waits; answers true at once if the user asked to go on (a key, a click).
    virtual bool pausa(int millisecondi) = 0;
    /// Lets pending events run in the middle of some work; those of mouse and keyboard wait for its end.
    virtual void eventi() = 0;
};

}  // namespace kelvo

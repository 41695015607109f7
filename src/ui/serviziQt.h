#pragma once

#include <functional>
#include <memory>

#include "app/servizi.h"
#include "app/serviziSistema.h"
#include "shell/servizi/DialogoAnteprima.h"

class QTimer;

/// The outside as the desktop offers it.
namespace kelvo::ui {

/// Message boxes on top of the window at hand.
class MessaggiQt final : public FinestraMessaggi {
public:
    Risposta mostra(const std::string& testo, const std::string& titolo, Icona icona, Pulsanti pulsanti) override;
    Risposta mostraSopra(const std::string& testo, const std::string& titolo, Icona icona, Pulsanti pulsanti) override;
};

/// The file dialogues of the toolkit.
class DialogoFileQt final : public DialogoFile {
public:
    std::optional<std::string> apri(const RichiestaFile& richiesta,
                                    const std::function<void(const std::string&)>& alCambio) override;
    std::optional<std::string> salva(const RichiestaFile& richiesta) override;
};

/// The file dialogue of the toolkit, never the system's own, with the window beside the files.
class DialogoAnteprimaQt final : public DialogoAnteprima {
public:
    bool apri(const RichiestaFile& richiesta, FinestraAnteprima& anteprima) override;
};

/// Opens documents with the desktop's own programs.
class ApriDocumentiQt final : public ApriDocumenti {
public:
    bool apri(const std::string& percorso) override;
    bool avvia(const std::string& programma, const std::string& argomento) override;
};

/// The user's settings in the folder that the desktop gives for them.
class ImpostazioniQt final : public ImpostazioniUtente {
public:
    void scrivi(const std::string& applicazione, const std::string& sezione, const std::string& chiave,
                const std::string& valore) override;
    std::string leggi(const std::string& applicazione, const std::string& sezione,
                      const std::string& chiave) const override;
};

/// The clipboard of the desktop.
class AppuntiQt final : public Appunti {
public:
    void scrivi(const std::string& testo) override;
    std::string leggi() const override;
};

/// The clipboard of the desktop, for pictures.
class AppuntiImmaginiQt final : public AppuntiImmagini {
public:
    bool scrivi(const std::string& png) override;
};

/// Waits in the event loop; a key or a click ends a pause. Beside some work it lets what was changed be painted, while
/// gestures wait in their queue.
class AttesaQt final : public Attesa {
public:
    bool pausa(int millisecondi) override;
    void eventi() override;
};

/// Calls back from the event loop.
class CronometroQt final : public Cronometro {
public:
    CronometroQt();
    ~CronometroQt() override;
    CronometroQt(const CronometroQt&) = delete;
    CronometroQt& operator=(const CronometroQt&) = delete;
    void ogni(int millisecondi, const std::function<void()>& cosa) override;
    void ferma() override;

private:
    std::unique_ptr<QTimer> tempo_;
    std::function<void()> cosa_;
};

}  // namespace kelvo::ui

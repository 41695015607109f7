#pragma once

#include <functional>
#include <string>

#include "app/serviziSistema.h"
#include "shell/servizi/Finestra.h"

namespace kelvo {

/// A window that stands beside the files of a dialogue and shows the one that is chosen.
class FinestraAnteprima : public Finestra {
public:
    using Finestra::Finestra;

    /// A file was selected in the dialogue, not yet confirmed.
    virtual void selezionato(const std::string& percorso) = 0;
    /// The dialogue was confirmed with a file; false keeps it open.
    virtual bool conferma(const std::string& percorso) = 0;
    /// The user confirms from within the window; set by the dialogue, empty where there is none.
    std::function<void()> allaConferma;
};

/// The file dialogue that carries such a window.
class DialogoAnteprima {
public:
    DialogoAnteprima() = default;
    DialogoAnteprima(const DialogoAnteprima&) = delete;
    DialogoAnteprima& operator=(const DialogoAnteprima&) = delete;
    virtual ~DialogoAnteprima() = default;

    /// Asks for a file to open; true once the window has agreed to one, false after Cancel.
    virtual bool apri(const RichiestaFile& richiesta, FinestraAnteprima& anteprima) = 0;
};

}  // namespace kelvo

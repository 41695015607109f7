#pragma once

#include <QtWidgets/QFrame>
#include <string>

#include "shell/servizi/controlli.h"

class QTextBrowser;
class QUrl;
class QVBoxLayout;

namespace kelvo::ui {

class Figura;

/// The help pane of a data window: a picture, a line, and the page of the field in use.
///
/// A page "Name.htm" that has a picture "Name" shows it; the others show the picture of the window.
class RiquadroAiuto final : public QFrame {
    Q_OBJECT
public:
    RiquadroAiuto(PannelloAiuto& aiuto, const QString& titolo, QWidget* genitore);

    /// The picture of the window, by its resource name; one that is not there leaves the one before.
    void figura(const std::string& risorsa);
    /// The picture of the window is the one of a control, and follows it.
    void segui(Immagine& immagine);
    /// Puts something in the place of the picture, which goes to the right of the page.
    void sopra(QWidget* oggetto);
    /// Puts something into the place of the picture, which is shown nowhere then.
    void alPosto(QWidget* oggetto);
    /// The pane is its title and the page alone, for the room that other things leave.
    void soloPagina();

private:
    void mostra();
    void collegamento(const QUrl& indirizzo);

    PannelloAiuto& aiuto_;
    QVBoxLayout* piano_;
    Figura* figura_;
    QTextBrowser* testo_;
    std::string risorsa_;
};

}  // namespace kelvo::ui

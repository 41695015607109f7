#pragma once

#include <QtWidgets/QDialog>
#include <string>

#include "app/servizi.h"

class QHBoxLayout;

namespace kelvo::ui {

/// A message box: sign and words above, the answers in a footer. Enter gives the first answer; Escape and the close box
/// give the harmless one, and do nothing where neither answer is harmless: a "No" may drop a project.
class DialogoMessaggio final : public QDialog {
    Q_OBJECT
public:
    DialogoMessaggio(const std::string& testo, const std::string& titolo, Icona icona, Pulsanti pulsanti,
                     QWidget* genitore);

    /// What was answered; the harmless answer as long as nothing was.
    Risposta risposta() const { return risposta_; }
    Icona icona() const { return icona_; }

    void reject() override;

private:
    QWidget* corpo(const std::string& testo, Icona icona);
    QWidget* piede(Pulsanti pulsanti);

    Icona icona_;
    bool soloPulsanti_;
    Risposta risposta_ = Risposta::ok;
};

}  // namespace kelvo::ui

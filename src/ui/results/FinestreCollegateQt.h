#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <map>

#include "shell/servizi/FinestreCollegate.h"

namespace kelvo {
class MDI_Form;
}

namespace kelvo::ui {

class VistaFinestra;
class VistaMDI_Form;

/// The windows that belong to another one, on the desktop. Those beside it stand at the right edge of the work area, as
/// wide as the column that the result windows keep there; the Escape key closes them.
class FinestreCollegateQt final : public QObject, public FinestreCollegate {
    Q_OBJECT
public:
    explicit FinestreCollegateQt(VistaMDI_Form& vista);
    ~FinestreCollegateQt() override;
    FinestreCollegateQt(const FinestreCollegateQt&) = delete;
    FinestreCollegateQt& operator=(const FinestreCollegateQt&) = delete;

    /// The main window, which switches the windows of the work area; once, before anything else. Only `dimentica` may
    /// come when it is gone.
    void collegaA(MDI_Form& cornice) { cornice_ = &cornice; }

    bool mostra(Finestra& finestra) override;
    void affianca(Finestra& finestra) override;
    void sovrapponi(Finestra& finestra) override;
    void chiudi(Finestra& finestra) override;
    void dimentica(Finestra& finestra) override;

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void colloca(QWidget& vista) const;
    void togli(Finestra& finestra);

    VistaMDI_Form& vista_;
    MDI_Form* cornice_ = nullptr;
    std::map<const Finestra*, QPointer<VistaFinestra>> accanto_;
};

}  // namespace kelvo::ui

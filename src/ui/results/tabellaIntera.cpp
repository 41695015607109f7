#include "ui/results/tabellaIntera.h"

#include <QtCore/QEvent>

#include "ui/VistaGriglia.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

class Altezza final : public QObject {
public:
    Altezza(VistaGriglia& vista, Griglia& griglia, bool ferma) : QObject(&vista), vista_(vista), ferma_(ferma) {
        vista_.installEventFilter(this);
        legame_ = griglia.cambiato().connect([this] { aggiorna(); });
        aggiorna();
    }
    ~Altezza() override { legame_.disconnect(); }
    Altezza(const Altezza&) = delete;
    Altezza& operator=(const Altezza&) = delete;

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override {
        if (evento->type() == QEvent::Resize || evento->type() == QEvent::Show) {
            aggiorna();
        }
        return QObject::eventFilter(oggetto, evento);
    }

private:
    void aggiorna() {
        const int alta = vista_.altezzaIntera();
        vista_.setMaximumHeight(alta);
        vista_.setMinimumHeight(ferma_ ? alta : 0);
    }

    VistaGriglia& vista_;
    bool ferma_;
    sigc::connection legame_;
};

}  // namespace

void tieniIntera(VistaGriglia& vista, Griglia& griglia, bool ferma) {
    new Altezza(vista, griglia, ferma);
}

void gioco(QWidget& figura) {
    figura.setMinimumHeight(misura::figuraMinima);
    figura.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
}

}  // namespace kelvo::ui

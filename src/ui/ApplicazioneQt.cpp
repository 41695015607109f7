#include "ui/ApplicazioneQt.h"

namespace kelvo::ui {

bool ApplicazioneQt::notify(QObject* oggetto, QEvent* evento) {
    try {
        return QApplication::notify(oggetto, evento);
    } catch (const Guasto& guasto) {
        if (!alGuasto) {
            throw;
        }
        alGuasto(guasto);
        return true;
    }
}

}  // namespace kelvo::ui

#pragma once

#include <QtWidgets/QApplication>
#include <functional>

#include "base/guasto.h"

namespace kelvo::ui {

/// The toolkit's application with a last net: a fault that no operation has caught is told, and the program goes on
/// with the work at hand.
class ApplicazioneQt final : public QApplication {
public:
    using QApplication::QApplication;

    /// Told of such a fault.
    std::function<void(const Guasto&)> alGuasto;

    bool notify(QObject* oggetto, QEvent* evento) override;
};

}  // namespace kelvo::ui

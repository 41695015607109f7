#include "ui/ApplicazioneQt.h"

#include <gtest/gtest.h>

#include <QtWidgets/QWidget>
#include <vector>

namespace kelvo::prove {
namespace {

/// A widget whose event ends in a fault that nobody catches.
class Guastante final : public QWidget {
protected:
    bool event(QEvent* evento) override {
        if (evento->type() == QEvent::User) {
            throw Guasto(NumeroGuasto::overflow, "prova");
        }
        return QWidget::event(evento);
    }
};

TEST(ApplicazioneQt, AFaultThatNobodyCaughtIsToldAndTheProgramGoesOn) {
    auto& applicazione = dynamic_cast<ui::ApplicazioneQt&>(*qApp);
    std::vector<int> numeri;
    applicazione.alGuasto = [&](const Guasto& guasto) { numeri.push_back(guasto.codice()); };
    Guastante oggetto;
    QEvent evento(QEvent::User);
    EXPECT_TRUE(QCoreApplication::sendEvent(&oggetto, &evento));
    EXPECT_EQ(numeri, std::vector<int>{6});
    applicazione.alGuasto = {};
    EXPECT_THROW(QCoreApplication::sendEvent(&oggetto, &evento), Guasto);
}

}  // namespace
}  // namespace kelvo::prove

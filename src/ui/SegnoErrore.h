#pragma once

#include <QtWidgets/QWidget>

namespace kelvo::ui {

/// Triangle at the left inside of a field that was refused. It belongs to the field, takes no gestures and stays in the
/// middle of its height.
class SegnoErrore final : public QWidget {
    Q_OBJECT
public:
    explicit SegnoErrore(QWidget& campo);

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;

private:
    void accosta();
};

}  // namespace kelvo::ui

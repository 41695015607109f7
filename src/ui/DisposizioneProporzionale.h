#pragma once

#include <QtWidgets/QLayout>
#include <memory>
#include <vector>

#include "shell/servizi/clsResize.h"

namespace kelvo::ui {

/// Places the panels of a window by the law of clsResize: each has a rectangle in a design of the window, which scales
/// with the room that is there. It never gets smaller than the size at which every panel still holds its content.
class DisposizioneProporzionale final : public QLayout {
public:
    /// `disegno` is the inside of the window that the rectangles are made for, margins left out; in logical pixels.
    DisposizioneProporzionale(Misura disegno, QWidget* genitore);
    ~DisposizioneProporzionale() override;
    DisposizioneProporzionale(const DisposizioneProporzionale&) = delete;
    DisposizioneProporzionale& operator=(const DisposizioneProporzionale&) = delete;

    /// Adds a panel; without width and height it takes no room until it is given some.
    void aggiungi(QWidget* pannello, const Rettangolo& posto);
    /// Gives a panel another rectangle.
    void sposta(const QWidget* pannello, const Rettangolo& posto);

    // QLayout
    /// A thing without a rectangle takes the whole design.
    void addItem(QLayoutItem* voce) override;
    int count() const override;
    QLayoutItem* itemAt(int indice) const override;
    QLayoutItem* takeAt(int indice) override;
    /// The design, or more where a panel asks for it.
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int larghezza) const override;
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal | Qt::Vertical; }
    void setGeometry(const QRect& rettangolo) override;

private:
    struct Voce {
        std::unique_ptr<QLayoutItem> cosa;
        Rettangolo posto;
    };

    /// Smallest inside in which each panel gets the size that `misura` tells of it, with the margins.
    template <class Funzione>
    QSize perTutti(Funzione misura) const;

    Misura disegno_;
    std::vector<Voce> voci_;
};

}  // namespace kelvo::ui

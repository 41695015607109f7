#pragma once

#include <QtWidgets/QHeaderView>
#include <vector>

#include "ui/PittoreCelle.h"

namespace kelvo::ui {

/// The fixed rows above the columns of a grid, or the fixed columns beside its rows.
class TestataGriglia final : public QHeaderView {
    Q_OBJECT
public:
    TestataGriglia(Qt::Orientation verso, const Griglia& griglia, QWidget* genitore);

    /// Thickness of each fixed row or column, in logical pixels.
    void spessori(const std::vector<int>& valori);
    const std::vector<int>& spessori() const { return spessori_; }
    int spessore() const;
    /// Smaller type, for a narrow window.
    void stretta(bool si) { pittore_.testate(si); }
    QSize sizeHint() const override;

protected:
    void paintSection(QPainter* pittore, const QRect& posto, int sezione) const override;

private:
    const Griglia& griglia_;
    PittoreCelle pittore_;
    std::vector<int> spessori_;
};

}  // namespace kelvo::ui

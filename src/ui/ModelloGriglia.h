#pragma once

#include <QtCore/QAbstractTableModel>

#include "ui/PittoreCelle.h"

namespace kelvo::ui {

/// The cells of a grid below and beside the fixed ones, which are its headings.
class ModelloGriglia final : public QAbstractTableModel {
    Q_OBJECT
public:
    ModelloGriglia(const Griglia& griglia, QObject* genitore);

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
    QVariant headerData(int sezione, Qt::Orientation verso, int ruolo = Qt::DisplayRole) const override;
    Qt::ItemFlags flags(const QModelIndex& indice) const override;

    Posto posto(const QModelIndex& indice) const;
    /// Invalid for a fixed cell and outside the table.
    QModelIndex indice(Posto posto) const;
    /// The table is another one or its texts have changed; true if it has other rows or columns.
    bool rileggi();

private:
    const Griglia& griglia_;
    PittoreCelle pittore_;
    int righe_ = 0;
    int colonne_ = 0;
};

}  // namespace kelvo::ui

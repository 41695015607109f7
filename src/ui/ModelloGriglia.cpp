#include "ui/ModelloGriglia.h"

#include <algorithm>

#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

ModelloGriglia::ModelloGriglia(const Griglia& griglia, QObject* genitore)
    : QAbstractTableModel(genitore), griglia_(griglia), pittore_(griglia) {}

int ModelloGriglia::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : righe_;
}

int ModelloGriglia::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : colonne_;
}

Posto ModelloGriglia::posto(const QModelIndex& indice) const {
    return {indice.row() + griglia_.righeFisse(), indice.column() + griglia_.colonneFisse()};
}

QModelIndex ModelloGriglia::indice(Posto posto) const {
    return index(posto.riga - griglia_.righeFisse(), posto.colonna - griglia_.colonneFisse());
}

QVariant ModelloGriglia::data(const QModelIndex& indice, int ruolo) const {
    if (!indice.isValid() || indice.row() >= righe_ || indice.column() >= colonne_) {
        return {};
    }
    const Posto dove = posto(indice);
    const Cella& cella = griglia_.tabella().cella(dove.riga, dove.colonna);
    switch (ruolo) {
        case Qt::DisplayRole:
        case Qt::AccessibleTextRole:
            return q(griglia_.testoFuori(dove));
        case Qt::EditRole:
            return q(cella.testo);
        case Qt::TextAlignmentRole:
            return QVariant::fromValue(pittore_.allineamento(dove));
        case Qt::FontRole:
            return pittore_.carattere(dove);
        case Qt::BackgroundRole:
            return qcolore(cella.sfondo);
        case Qt::ForegroundRole:
            return qcolore(inchiostroLeggibile(cella.inchiostro, cella.sfondo));
        default:
            return {};
    }
}

QVariant ModelloGriglia::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
    const bool orizzontale = verso == Qt::Horizontal;
    const int fisse = orizzontale ? std::min(griglia_.righeFisse(), griglia_.tabella().righe())
                                  : std::min(griglia_.colonneFisse(), griglia_.tabella().colonne());
    if (ruolo != Qt::DisplayRole || sezione < 0 || sezione >= (orizzontale ? colonne_ : righe_)) {
        return {};
    }
    QStringList testi;
    for (int i = 0; i < fisse; ++i) {
        testi << q(orizzontale ? griglia_.testo(i, sezione + griglia_.colonneFisse())
                               : griglia_.testo(sezione + griglia_.righeFisse(), i));
    }
    return testi.join(QLatin1Char(' '));
}

Qt::ItemFlags ModelloGriglia::flags(const QModelIndex& indice) const {
    if (!indice.isValid()) {
        return Qt::NoItemFlags;
    }
    const Qt::ItemFlags fermo = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    return griglia_.puoModificare(posto(indice)) ? fermo | Qt::ItemIsEditable : fermo;
}

bool ModelloGriglia::rileggi() {
    const int righe = std::max(0, griglia_.tabella().righe() - griglia_.righeFisse());
    const int colonne = std::max(0, griglia_.tabella().colonne() - griglia_.colonneFisse());
    if (righe != righe_ || colonne != colonne_) {
        beginResetModel();
        righe_ = righe;
        colonne_ = colonne;
        endResetModel();
        return true;
    }
    if (righe_ > 0 && colonne_ > 0) {
        Q_EMIT dataChanged(index(0, 0), index(righe_ - 1, colonne_ - 1));
    }
    return false;
}

}  // namespace kelvo::ui

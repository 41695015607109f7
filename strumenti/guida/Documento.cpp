#include "guida/Documento.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

namespace kelvo::guida {

namespace {

/// Every marked text of a block.
class Testi {
public:
    QStringList di(const Blocco& blocco) { return std::visit(*this, blocco); }

    QStringList operator()(const Titolo& titolo) { return {titolo.testo}; }
    QStringList operator()(const Paragrafo& paragrafo) { return {paragrafo.testo}; }
    QStringList operator()(const Elenco& elenco) { return elenco.voci; }
    QStringList operator()(const Tabella& tabella) {
        QStringList tutti = tabella.testata;
        for (const QStringList& riga : tabella.righe) {
            tutti += riga;
        }
        return tutti;
    }
    QStringList operator()(const Figura& figura) { return {figura.didascalia}; }
    QStringList operator()(const Avviso& avviso) { return {avviso.testo}; }
    QStringList operator()(const Codice& /*codice*/) { return {}; }
    QStringList operator()(const Formula& /*formula*/) { return {}; }
    QStringList operator()(const NuovaPagina& /*pagina*/) { return {}; }
};

}  // namespace

void numera(Documento& documento) {
    int capitolo = 0;
    int sezione = 0;
    int figura = 0;
    for (Blocco& blocco : documento.blocchi) {
        if (auto* titolo = std::get_if<Titolo>(&blocco)) {
            if (titolo->livello == 1) {
                titolo->numero = QString::number(++capitolo);
                sezione = 0;
            } else if (titolo->livello == 2) {
                titolo->numero = QStringLiteral("%1.%2").arg(capitolo).arg(++sezione);
            }
        } else if (auto* immagine = std::get_if<Figura>(&blocco)) {
            immagine->numero = ++figura;
        }
    }
}

QStringList legamiRotti(const Documento& documento) {
    static const QRegularExpression legame(QStringLiteral(R"(\]\(#([^)]+)\))"));
    QSet<QString> ancore;
    for (const Blocco& blocco : documento.blocchi) {
        if (const auto* titolo = std::get_if<Titolo>(&blocco); titolo != nullptr && !titolo->ancora.isEmpty()) {
            ancore.insert(titolo->ancora);
        }
    }
    QStringList rotti;
    Testi testi;
    for (const Blocco& blocco : documento.blocchi) {
        for (const QString& testo : testi.di(blocco)) {
            for (auto trovati = legame.globalMatch(testo); trovati.hasNext();) {
                const QString dove = trovati.next().captured(1);
                if (!ancore.contains(dove) && !rotti.contains(dove)) {
                    rotti << dove;
                }
            }
        }
    }
    return rotti;
}

QList<ImmagineChiesta> immaginiChieste(const Documento& documento) {
    QList<ImmagineChiesta> chieste;
    for (const Blocco& blocco : documento.blocchi) {
        if (const auto* figura = std::get_if<Figura>(&blocco)) {
            chieste.push_back({figura->immagine, figura->intera});
        }
    }
    return chieste;
}

}  // namespace kelvo::guida

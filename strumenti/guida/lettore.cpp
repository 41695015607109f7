#include "guida/lettore.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <stdexcept>

namespace kelvo::guida {

namespace {

[[noreturn]] void guasto(const QString& testo) {
    throw std::runtime_error(testo.toStdString());
}

QStringList righeDi(const QString& percorso) {
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly)) {
        guasto(percorso + QStringLiteral(": il file non si apre"));
    }
    return QString::fromUtf8(file.readAll()).remove(QLatin1Char('\r')).split(QLatin1Char('\n'));
}

/// The cells of a row "| a | b |".
QStringList celle(const QString& riga) {
    QString dentro = riga.trimmed();
    dentro = dentro.mid(1, dentro.size() - (dentro.endsWith(QLatin1Char('|')) ? 2 : 1));
    QStringList parti;
    QString cella;
    for (qsizetype i = 0; i < dentro.size(); ++i) {
        if (dentro[i] == QLatin1Char('\\') && i + 1 < dentro.size() && dentro[i + 1] == QLatin1Char('|')) {
            cella += dentro[++i];
        } else if (dentro[i] == QLatin1Char('|')) {
            parti << cella.trimmed();
            cella.clear();
        } else {
            cella += dentro[i];
        }
    }
    parti << cella.trimmed();
    return parti;
}

Qt::Alignment lato(const QString& segno) {
    const bool destra = segno.endsWith(QLatin1Char(':'));
    const bool sinistra = segno.startsWith(QLatin1Char(':'));
    return destra ? (sinistra ? Qt::AlignHCenter : Qt::AlignRight) : Qt::AlignLeft;
}

class Lettore {
public:
    explicit Lettore(const Fonti& fonti) : fonti_(fonti) {}

    Documento tutto(const QString& percorso) {
        righe_ = righeDi(percorso);
        percorso_ = percorso;
        testa();
        corpo();
        return documento_;
    }

private:
    void testa() {
        while (posto_ < righe_.size() && righe_[posto_] != QStringLiteral("---")) {
            const QString riga = righe_[posto_++];
            const QString nome = riga.section(QLatin1Char(':'), 0, 0).trimmed();
            const QString valore = sostituisci(riga.section(QLatin1Char(':'), 1).trimmed());
            const bool si = valore == QStringLiteral("si");
            if (nome == QStringLiteral("titolo")) {
                documento_.titolo = valore;
            } else if (nome == QStringLiteral("sottotitolo")) {
                documento_.sottotitolo = valore;
            } else if (nome == QStringLiteral("argomento")) {
                documento_.argomento = valore;
            } else if (nome == QStringLiteral("copertina")) {
                documento_.copertina = si;
            } else if (nome == QStringLiteral("indice")) {
                documento_.indice = si;
            } else if (nome == QStringLiteral("capitoliAPagina")) {
                documento_.capitoliAPagina = si;
            } else if (nome == QStringLiteral("figureNumerate")) {
                documento_.figureNumerate = si;
            } else if (!nome.isEmpty()) {
                errore(QStringLiteral("voce sconosciuta '%1'").arg(nome));
            }
        }
        ++posto_;
    }

    void corpo() {
        while (posto_ < righe_.size()) {
            const QString riga = righe_[posto_];
            if (riga.trimmed().isEmpty()) {
                ++posto_;
            } else if (riga.startsWith(QLatin1Char('@'))) {
                ++posto_;
                comando(sostituisci(riga));
            } else if (riga.startsWith(QLatin1Char('#'))) {
                ++posto_;
                titolo(sostituisci(riga));
            } else if (riga.startsWith(QStringLiteral("```"))) {
                codice();
            } else if (riga.startsWith(QStringLiteral("$$"))) {
                ++posto_;
                documento_.blocchi << Formula{riga.section(QStringLiteral("$$"), 1, 1).trimmed()};
            } else if (riga.startsWith(QLatin1Char('|'))) {
                tabella();
            } else if (riga.startsWith(QStringLiteral("!["))) {
                ++posto_;
                figura(sostituisci(riga));
            } else if (riga.startsWith(QStringLiteral("    "))) {
                rientrate();
            } else {
                prosa();
            }
        }
    }

    void comando(const QString& riga) {
        const QString nome = riga.section(QLatin1Char(' '), 0, 0);
        const QString argomento = riga.section(QLatin1Char(' '), 1).trimmed();
        if (nome == QStringLiteral("@includi")) {
            includi(QFileInfo(percorso_).dir().filePath(argomento));
        } else if (nome == QStringLiteral("@tavola")) {
            documento_.blocchi << fonti_.tavola(argomento);
        } else if (nome == QStringLiteral("@uscita")) {
            documento_.blocchi << Codice{fonti_.uscita(argomento)};
        } else if (nome == QStringLiteral("@documento")) {
            sezioneAltrui(argomento);
        } else if (nome == QStringLiteral("@pagina")) {
            documento_.blocchi << NuovaPagina{};
        } else {
            errore(QStringLiteral("comando sconosciuto '%1'").arg(nome));
        }
    }

    void includi(const QString& percorso) {
        const QStringList righe = righe_;
        const QString prima = percorso_;
        const qsizetype posto = posto_;
        righe_ = righeDi(percorso);
        percorso_ = percorso;
        posto_ = 0;
        corpo();
        righe_ = righe;
        percorso_ = prima;
        posto_ = posto;
    }

    /// The lines below a heading of another document, down to the next one of its level; its own headings are parts.
    void sezioneAltrui(const QString& argomento) {
        const QString file = argomento.section(QLatin1Char(' '), 0, 0);
        const QString intestazione = argomento.section(QLatin1Char(' '), 1).trimmed();
        const QStringList tutte = fonti_.dovunque(file).split(QLatin1Char('\n'));
        const qsizetype da = tutte.indexOf(intestazione);
        if (da < 0) {
            errore(QStringLiteral("'%1' non è in %2").arg(intestazione, file));
        }
        const QString cancelletti = intestazione.section(QLatin1Char(' '), 0, 0) + QLatin1Char(' ');
        QStringList sue;
        for (qsizetype i = da + 1; i < tutte.size() && !tutte[i].startsWith(cancelletti); ++i) {
            sue << tutte[i];
        }
        const QStringList righe = righe_;
        const qsizetype posto = posto_;
        righe_ = sue;
        posto_ = 0;
        corpo();
        righe_ = righe;
        posto_ = posto;
    }

    void titolo(const QString& riga) {
        static const QRegularExpression forma(QStringLiteral(R"(^(#{1,3}) (.*?)(?: \{(.*)\})?$)"));
        const auto parti = forma.match(riga);
        if (!parti.hasMatch()) {
            errore(QStringLiteral("titolo illeggibile"));
        }
        Titolo titolo;
        titolo.livello = static_cast<int>(parti.captured(1).size());
        titolo.testo = parti.captured(2).trimmed();
        for (const QString& segno : parti.captured(3).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            if (segno.startsWith(QLatin1Char('#'))) {
                titolo.ancora = segno.mid(1);
            } else if (segno.startsWith(QStringLiteral("finestra="))) {
                titolo.finestra = segno.section(QLatin1Char('='), 1);
            } else {
                errore(QStringLiteral("segno sconosciuto '%1'").arg(segno));
            }
        }
        documento_.blocchi << titolo;
    }

    void codice() {
        QStringList dentro;
        for (++posto_; posto_ < righe_.size() && !righe_[posto_].startsWith(QStringLiteral("```")); ++posto_) {
            dentro << sostituisci(righe_[posto_]);
        }
        ++posto_;
        documento_.blocchi << Codice{dentro.join(QLatin1Char('\n'))};
    }

    void rientrate() {
        QStringList dentro;
        for (; posto_ < righe_.size() && righe_[posto_].startsWith(QStringLiteral("    ")); ++posto_) {
            dentro << sostituisci(righe_[posto_].mid(4));
        }
        documento_.blocchi << Codice{dentro.join(QLatin1Char('\n'))};
    }

    void tabella() {
        Tabella tabella;
        tabella.testata = celle(sostituisci(righe_[posto_++]));
        if (posto_ >= righe_.size() || !righe_[posto_].startsWith(QStringLiteral("|"))) {
            errore(QStringLiteral("tabella senza la riga dei lati"));
        }
        for (const QString& segno : celle(righe_[posto_++])) {
            tabella.lati << lato(segno);
        }
        for (; posto_ < righe_.size() && righe_[posto_].startsWith(QLatin1Char('|')); ++posto_) {
            tabella.righe << celle(sostituisci(righe_[posto_]));
            if (tabella.righe.back().size() != tabella.testata.size()) {
                errore(QStringLiteral("riga di tabella con %1 celle").arg(tabella.righe.back().size()));
            }
        }
        documento_.blocchi << tabella;
    }

    void figura(const QString& riga) {
        static const QRegularExpression forma(QStringLiteral(R"(^!\[(.*)\]\(([^)]+)\)(?:\{(.*)\})?\s*$)"));
        const auto parti = forma.match(riga);
        if (!parti.hasMatch()) {
            errore(QStringLiteral("figura illeggibile"));
        }
        Figura figura;
        figura.didascalia = parti.captured(1);
        figura.immagine = parti.captured(2);
        for (const QString& segno : parti.captured(3).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const QString valore = segno.section(QLatin1Char('='), 1);
            if (segno == QStringLiteral("intera")) {
                figura.intera = true;
            } else if (segno.startsWith(QStringLiteral("larghezza="))) {
                figura.larghezza = valore.toDouble();
            } else if (segno.startsWith(QStringLiteral("ritaglio="))) {
                const QStringList n = valore.split(QLatin1Char(','));
                figura.ritaglio =
                    QRectF(n.value(0).toDouble(), n.value(1).toDouble(), n.value(2).toDouble(), n.value(3).toDouble());
            } else {
                errore(QStringLiteral("segno sconosciuto '%1'").arg(segno));
            }
        }
        documento_.blocchi << figura;
    }

    /// A paragraph, a list or a remark: lines up to an empty one, or to where another kind of block begins.
    void prosa() {
        static const QRegularExpression voce(QStringLiteral(R"(^(-|\d+\.) +(.*)$)"));
        static const QRegularExpression altro(QStringLiteral(R"(^(#|@|```|\||!\[|\$\$))"));
        QStringList parti;
        QString genere;
        for (; posto_ < righe_.size() && !righe_[posto_].trimmed().isEmpty(); ++posto_) {
            QString riga = sostituisci(righe_[posto_]);
            if (altro.match(riga).hasMatch()) {
                break;
            }
            if (const auto trovata = voce.match(riga); trovata.hasMatch()) {
                if (genere.isEmpty() && !parti.isEmpty()) {
                    break;  // a list below a paragraph
                }
                genere = trovata.captured(1);
                parti << trovata.captured(2);
                continue;
            }
            if (riga.startsWith(QLatin1Char('>'))) {
                genere = QStringLiteral(">");
                riga = riga.mid(1);
            }
            if (parti.isEmpty()) {
                parti << riga.trimmed();
            } else {
                parti.back() += QLatin1Char(' ') + riga.trimmed();
            }
        }
        if (genere.isEmpty()) {
            documento_.blocchi << Paragrafo{parti.join(QLatin1Char(' '))};
        } else if (genere == QStringLiteral(">")) {
            documento_.blocchi << Avviso{parti.join(QLatin1Char(' ')).trimmed()};
        } else {
            documento_.blocchi << Elenco{genere != QStringLiteral("-"), parti};
        }
    }

    QString sostituisci(const QString& testo) {
        static const QRegularExpression segnaposto(QStringLiteral(R"(\{\{([^}]+)\}\})"));
        QString fatto;
        qsizetype da = 0;
        for (auto trovati = segnaposto.globalMatch(testo); trovati.hasNext();) {
            const auto trovato = trovati.next();
            fatto += QStringView{testo}.mid(da, trovato.capturedStart() - da);
            fatto += fonti_.valore(trovato.captured(1).trimmed());
            da = trovato.capturedEnd();
        }
        return fatto += QStringView{testo}.mid(da);
    }

    [[noreturn]] void errore(const QString& testo) const {
        guasto(QStringLiteral("%1:%2: %3").arg(QFileInfo(percorso_).fileName()).arg(posto_).arg(testo));
    }

    const Fonti& fonti_;
    Documento documento_;
    QStringList righe_;
    QString percorso_;
    qsizetype posto_ = 0;
};

}  // namespace

Documento leggi(const QString& percorso, const Fonti& fonti) {
    Documento documento = Lettore(fonti).tutto(percorso);
    numera(documento);
    return documento;
}

}  // namespace kelvo::guida

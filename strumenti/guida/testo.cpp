#include "guida/testo.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QPainter>
#include <algorithm>
#include <cmath>

namespace kelvo::guida {

namespace {

constexpr double corpoFisso = 0.86;  ///< letters of one width beside the others
constexpr Colore inchiostroFisso{0, 86, 143};

/// Letters stay apart, so that words are found in the file as they are written: any letter spacing does it.
void senzaLegature(QFont& fatto) {
    constexpr double minima = 1.0 / 32.0;
    fatto.setLetterSpacing(QFont::AbsoluteSpacing, minima);
}

QFont famiglie(const QStringList& nomi, double punti) {
    QFont fatto;
    fatto.setFamilies(nomi);
    fatto.setPixelSize(std::max(1, static_cast<int>(std::lround(punti * punto))));
    fatto.setHintingPreference(QFont::PreferNoHinting);
    senzaLegature(fatto);
    return fatto;
}

/// Turns marks into formats.
class Marche {
public:
    Marche(const Veste& veste, const Numeri& numeri) : veste_(veste), numeri_(numeri) {}

    QString testo;
    QList<QTextLayout::FormatRange> formati;

    void leggi(const QString& marcato) {
        for (qsizetype i = 0; i < marcato.size();) {
            i = uno(marcato, i);
        }
        chiudi();
    }

private:
    qsizetype uno(const QString& m, qsizetype i) {
        const QStringView resto = QStringView{m}.mid(i);
        if (resto[0] == QLatin1Char('\\') && resto.size() > 1) {
            testo += resto[1];
            return i + 2;
        }
        if (resto[0] == QLatin1Char('`')) {
            if (const qsizetype fine = m.indexOf(QLatin1Char('`'), i + 1); fine > i) {
                tratto([&] { faccia_.fissa = true; }, m.mid(i + 1, fine - i - 1));
                return fine + 1;
            }
        }
        if (resto.startsWith(QStringLiteral("**"))) {
            muta(faccia_.forte);
            return i + 2;
        }
        if (resto[0] == QLatin1Char('*')) {
            muta(faccia_.corsivo);
            return i + 1;
        }
        static const QRegularExpression basso(QStringLiteral(R"(^~([^~\s]{1,8})~)"));
        static const QRegularExpression alto(QStringLiteral(R"(^\^([^^\s]{1,8})\^)"));
        static const QRegularExpression legame(QStringLiteral(R"(^\[([^\]]*)\]\(([^)\s]+)\))"));
        const QString qui = m.mid(i);
        if (const auto trovato = basso.match(qui); trovato.hasMatch()) {
            tratto([&] { posto_ = QTextCharFormat::AlignSubScript; }, trovato.captured(1));
            return i + trovato.capturedEnd();
        }
        if (const auto trovato = alto.match(qui); trovato.hasMatch()) {
            tratto([&] { posto_ = QTextCharFormat::AlignSuperScript; }, trovato.captured(1));
            return i + trovato.capturedEnd();
        }
        if (const auto trovato = legame.match(qui); trovato.hasMatch()) {
            collega(trovato.captured(1), trovato.captured(2));
            return i + trovato.capturedEnd();
        }
        testo += m[i];
        return i + 1;
    }

    void collega(const QString& parole, const QString& dove) {
        const bool dentro = dove.startsWith(QLatin1Char('#'));
        const bool fuori = dove.startsWith(QStringLiteral("http"));
        QString scritte = parole;
        if (scritte.isEmpty()) {
            const QString numero = numeri_.value(dove.mid(1));
            const bool sezione = numero.contains(QLatin1Char('.'));
            scritte = (sezione ? QStringLiteral("paragrafo\u00a0") : QStringLiteral("capitolo\u00a0")) + numero;
        }
        if (!dentro && !fuori) {
            Marche altre(veste_, numeri_);  // a link of another document: its words alone
            altre.leggi(scritte);
            testo += altre.testo;
            return;
        }
        tratto([&] { legame_ = dove; }, QString(scritte).remove(QLatin1Char('`')));
    }

    template <class Come>
    void tratto(Come come, const QString& parole) {
        chiudi();
        const Faccia prima = faccia_;
        come();
        testo += parole;
        chiudi();
        faccia_ = prima;
        posto_ = QTextCharFormat::AlignNormal;
        legame_.clear();
    }

    void muta(bool& segno) {
        chiudi();
        segno = !segno;
    }

    /// The text since the last mark gets its format.
    void chiudi() {
        if (testo.size() == da_) {
            return;
        }
        Faccia faccia = faccia_;
        faccia.forte = faccia.forte || veste_.forte;
        faccia.leggera = veste_.leggera;
        QTextCharFormat formato;
        formato.setFont(carattere(faccia.fissa ? veste_.punti * corpoFisso : veste_.punti, faccia));
        formato.setForeground(veste_.colore);
        if (faccia.fissa && veste_.colore == qcolore(tinta::inchiostro)) {
            formato.setForeground(qcolore(inchiostroFisso));
        }
        formato.setVerticalAlignment(posto_);
        if (!legame_.isEmpty()) {
            formato.setForeground(veste_.legami);
            formato.setAnchor(true);
            formato.setAnchorHref(legame_);
        }
        formati.push_back({static_cast<int>(da_), static_cast<int>(testo.size() - da_), formato});
        da_ = testo.size();
    }

    const Veste& veste_;
    const Numeri& numeri_;
    Faccia faccia_;
    QTextCharFormat::VerticalAlignment posto_ = QTextCharFormat::AlignNormal;
    QString legame_;
    qsizetype da_ = 0;
};

void spezza(QTextLayout& composto, double larghezza) {
    composto.setCacheEnabled(true);
    composto.beginLayout();
    double y = 0.0;
    for (QTextLine riga = composto.createLine(); riga.isValid(); riga = composto.createLine()) {
        riga.setLineWidth(larghezza);
        riga.setPosition({0.0, y});
        y += riga.height();
    }
    composto.endLayout();
}

}  // namespace

QFont carattere(double punti, const Faccia& faccia) {
    if (faccia.fissa) {
        return famiglie(
            {QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Liberation Mono"), QStringLiteral("monospace")},
            punti);
    }
    if (faccia.leggera) {
        return famiglie({QStringLiteral("Open Sans Light"), QStringLiteral("Open Sans")}, punti);
    }
    QFont fatto = faccia.forte ? disegno::forte(punti * punto) : disegno::dati(punti * punto);
    fatto.setItalic(faccia.corsivo);
    fatto.setHintingPreference(QFont::PreferNoHinting);
    senzaLegature(fatto);
    return fatto;
}

std::shared_ptr<QTextLayout> componi(const QString& marcato, const Veste& veste, double larghezza, const Numeri& numeri,
                                     const QString& ancora) {
    Marche marche(veste, numeri);
    marche.leggi(marcato);
    auto composto = std::make_shared<QTextLayout>(
        marche.testo, carattere(veste.punti, {.forte = veste.forte, .leggera = veste.leggera}));
    QTextOption scelte(veste.lato);
    scelte.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    scelte.setUseDesignMetrics(true);
    composto->setTextOption(scelte);
    if (!ancora.isEmpty() && !marche.formati.isEmpty()) {
        marche.formati.front().format.setAnchor(true);
        marche.formati.front().format.setAnchorNames({ancora});
    }
    composto->setFormats(marche.formati);
    spezza(*composto, larghezza);
    return composto;
}

std::shared_ptr<QTextLayout> componiNudo(const QString& testo, const QFont& carattere, const QColor& colore,
                                         double larghezza, Qt::Alignment lato) {
    auto composto = std::make_shared<QTextLayout>(testo, carattere);
    QTextOption scelte(lato);
    scelte.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    scelte.setUseDesignMetrics(true);
    composto->setTextOption(scelte);
    QTextCharFormat formato;
    formato.setForeground(colore);
    composto->setFormats({{0, static_cast<int>(testo.size()), formato}});
    spezza(*composto, larghezza);
    return composto;
}

QString senzaMarche(const QString& marcato, const Numeri& numeri) {
    const Veste veste;
    Marche marche(veste, numeri);
    marche.leggi(marcato);
    return marche.testo;
}

double altezza(const QTextLayout& testo, int da, int a) {
    return da >= a ? 0.0 : testo.lineAt(a - 1).y() + testo.lineAt(a - 1).height() - testo.lineAt(da).y();
}

double altezza(const QTextLayout& testo) {
    return altezza(testo, 0, testo.lineCount());
}

double larghezza(const QTextLayout& testo) {
    double massima = 0.0;
    for (int i = 0; i < testo.lineCount(); ++i) {
        massima = std::max(massima, testo.lineAt(i).naturalTextWidth());
    }
    return massima;
}

void dipingi(QPainter& pennello, const QTextLayout& testo, int da, int a, QPointF angolo) {
    if (da >= a) {
        return;
    }
    const QPointF inizio = angolo - QPointF(0.0, testo.lineAt(da).y());
    for (int riga = da; riga < a; ++riga) {
        testo.lineAt(riga).draw(&pennello, inizio);
    }
}

}  // namespace kelvo::guida

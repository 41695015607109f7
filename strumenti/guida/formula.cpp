#include "guida/formula.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <algorithm>
#include <stdexcept>
#include <vector>

#include "guida/stile.h"

namespace kelvo::guida {

namespace {

constexpr double apice = 0.72;  ///< size of what stands above or below
constexpr double filo = 0.7 * punto;
constexpr double aria = 0.12;  ///< of the size, around a bar

QFont facciaDi(double punti, bool corsivo) {
    return carattere(punti, {.corsivo = corsivo});
}

Scatola parola(const QString& testo, double punti, bool corsivo) {
    const QFont faccia = facciaDi(punti, corsivo);
    const QFontMetricsF metrica(faccia);
    return {metrica.horizontalAdvance(testo), punti * punto * 0.78, punti * punto * 0.22,
            [testo, faccia](QPainter& pennello, QPointF dove) {
                pennello.setFont(faccia);
                pennello.setPen(qcolore(tinta::inchiostro));
                pennello.drawText(dove, testo);
            }};
}

Scatola accanto(std::vector<Scatola> parti) {
    Scatola fatta;
    for (const Scatola& parte : parti) {
        fatta.larghezza += parte.larghezza;
        fatta.sopra = std::max(fatta.sopra, parte.sopra);
        fatta.sotto = std::max(fatta.sotto, parte.sotto);
    }
    fatta.dipingi = [parti = std::move(parti)](QPainter& pennello, QPointF dove) {
        for (const Scatola& parte : parti) {
            if (parte.dipingi) {
                parte.dipingi(pennello, dove);
            }
            dove.rx() += parte.larghezza;
        }
    };
    return fatta;
}

Scatola spostata(const Scatola& cosa, double giu) {
    return {cosa.larghezza, std::max(0.0, cosa.sopra - giu), std::max(0.0, cosa.sotto + giu),
            [cosa, giu](QPainter& pennello, QPointF dove) { cosa.dipingi(pennello, dove + QPointF(0.0, giu)); }};
}

Scatola frazione(const Scatola& su, const Scatola& giu, double punti) {
    const double asse = punti * punto * 0.28;  // height of the bar above the line
    const double margine = punti * punto * aria;
    const double larga = std::max(su.larghezza, giu.larghezza) + 4.0 * margine;
    const double y = asse;
    Scatola fatta{larga, y + margine + su.sopra + su.sotto, giu.sopra + giu.sotto + margine - y, {}};
    fatta.dipingi = [=](QPainter& pennello, QPointF dove) {
        const double barra = dove.y() - y;
        su.dipingi(pennello, {dove.x() + (larga - su.larghezza) / 2.0, barra - margine - su.sotto});
        giu.dipingi(pennello, {dove.x() + (larga - giu.larghezza) / 2.0, barra + margine + giu.sopra});
        pennello.setPen(QPen(qcolore(tinta::inchiostro), filo));
        pennello.drawLine(QPointF(dove.x() + margine, barra), QPointF(dove.x() + larga - margine, barra));
    };
    return fatta;
}

Scatola radice(const Scatola& dentro, double punti) {
    const double segno = punti * punto * 0.75;
    const double margine = punti * punto * aria;
    Scatola fatta{dentro.larghezza + segno + 2.0 * margine, dentro.sopra + 2.0 * margine, dentro.sotto + margine, {}};
    fatta.dipingi = [=](QPainter& pennello, QPointF dove) {
        const double alto = dove.y() - dentro.sopra - margine;
        const double basso = dove.y() + dentro.sotto;
        QPainterPath tratto(QPointF(dove.x(), dove.y() - punti * punto * 0.25));
        tratto.lineTo(dove.x() + segno * 0.25, dove.y() - punti * punto * 0.33);
        tratto.lineTo(dove.x() + segno * 0.55, basso);
        tratto.lineTo(dove.x() + segno, alto);
        tratto.lineTo(dove.x() + segno + dentro.larghezza + margine, alto);
        pennello.setPen(QPen(qcolore(tinta::inchiostro), filo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        pennello.setBrush(Qt::NoBrush);
        pennello.drawPath(tratto);
        dentro.dipingi(pennello, {dove.x() + segno + margine, dove.y()});
    };
    return fatta;
}

Scatola fraParentesi(const Scatola& dentro, double punti, bool quadre) {
    const double lato = punti * punto * 0.36;
    const double margine = punti * punto * 0.06;
    Scatola fatta{dentro.larghezza + 2.0 * lato, dentro.sopra + margine, dentro.sotto + margine, {}};
    fatta.dipingi = [=](QPainter& pennello, QPointF dove) {
        const double alto = dove.y() - dentro.sopra - margine;
        const double basso = dove.y() + dentro.sotto + margine;
        const auto una = [&](double fuori, double orlo) {
            QPainterPath tratto(QPointF(orlo, alto));
            if (quadre) {
                tratto.lineTo(fuori, alto);
                tratto.lineTo(fuori, basso);
                tratto.lineTo(orlo, basso);
            } else {
                const double pancia = 2.0 * fuori - orlo;
                tratto.cubicTo(pancia, alto + (basso - alto) * 0.3, pancia, alto + (basso - alto) * 0.7, orlo, basso);
            }
            pennello.drawPath(tratto);
        };
        pennello.setPen(QPen(qcolore(tinta::inchiostro), filo * 1.2, Qt::SolidLine, Qt::RoundCap));
        pennello.setBrush(Qt::NoBrush);
        una(dove.x() + lato * 0.45, dove.x() + lato * 0.85);
        una(dove.x() + fatta.larghezza - lato * 0.45, dove.x() + fatta.larghezza - lato * 0.85);
        pennello.setPen(qcolore(tinta::inchiostro));
        dentro.dipingi(pennello, {dove.x() + lato, dove.y()});
    };
    return fatta;
}

class Compositore {
public:
    explicit Compositore(const QString& sorgente) : s_(sorgente) {}

    Scatola tutta() {
        const Scatola fatta = sequenza(corpo::formula, false);
        if (i_ < s_.size()) {
            throw std::runtime_error("formula con una graffa di troppo: " + s_.toStdString());
        }
        return fatta;
    }

private:
    Scatola sequenza(double punti, bool graffe) {
        std::vector<Scatola> parti;
        while (i_ < s_.size() && s_[i_] != QLatin1Char('}')) {
            parti.push_back(conApici(atomo(punti), punti));
        }
        if (graffe) {
            if (i_ == s_.size()) {
                throw std::runtime_error("formula con una graffa aperta: " + s_.toStdString());
            }
            ++i_;
        }
        return accanto(std::move(parti));
    }

    Scatola gruppo(double punti) {
        if (i_ < s_.size() && s_[i_] == QLatin1Char('{')) {
            ++i_;
            return sequenza(punti, true);
        }
        return atomo(punti);
    }

    Scatola conApici(Scatola base, double punti) {
        while (i_ < s_.size() && (s_[i_] == QLatin1Char('_') || s_[i_] == QLatin1Char('^'))) {
            const bool su = s_[i_++] == QLatin1Char('^');
            const Scatola piccola = gruppo(punti * apice);
            const double quanto =
                su ? -(std::max(0.0, base.sopra - punti * punto * 0.78) + punti * punto * 0.38) : punti * punto * 0.18;
            base = accanto({base, spostata(piccola, quanto)});
        }
        return base;
    }

    Scatola atomo(double punti) {
        const QChar c = s_[i_];
        if (c == QLatin1Char('{')) {
            return gruppo(punti);
        }
        if (c == QLatin1Char('\\')) {
            return comando(punti);
        }
        if (c == QLatin1Char(' ')) {
            ++i_;
            return {punti * punto * 0.25, 0.0, 0.0, [](QPainter&, QPointF) {}};
        }
        const auto lettera = [this](qsizetype i) { return i < s_.size() && s_[i].isLetter(); };
        const bool slanciata = lettera(i_);
        qsizetype fine = i_ + 1;
        if (!slanciata) {
            const QString ferma = QStringLiteral("\\{}_^ ");
            while (fine < s_.size() && !s_[fine].isLetter() && !ferma.contains(s_[fine])) {
                ++fine;
            }
        }
        const QString testo = s_.mid(i_, fine - i_);
        i_ = fine;
        return parola(testo, punti, slanciata);
    }

    Scatola comando(double punti) {
        qsizetype fine = i_ + 1;
        while (fine < s_.size() && s_[fine].isLetter()) {
            ++fine;
        }
        const QString nome = s_.mid(i_ + 1, fine - i_ - 1);
        i_ = fine;
        if (nome == QStringLiteral("text")) {
            const qsizetype chiusa = s_.indexOf(QLatin1Char('}'), i_);
            const QString testo = s_.mid(i_ + 1, chiusa - i_ - 1);
            i_ = chiusa + 1;
            return parola(testo, punti, false);
        }
        if (nome == QStringLiteral("frac")) {
            const Scatola su = gruppo(punti);
            const Scatola giu = gruppo(punti);
            return frazione(su, giu, punti);
        }
        if (nome == QStringLiteral("sqrt")) {
            return radice(gruppo(punti), punti);
        }
        if (nome == QStringLiteral("par") || nome == QStringLiteral("qua")) {
            return fraParentesi(gruppo(punti), punti, nome == QStringLiteral("qua"));
        }
        throw std::runtime_error("formula con una parola sconosciuta: " + nome.toStdString());
    }

    const QString& s_;
    qsizetype i_ = 0;
};

}  // namespace

Scatola componiFormula(const QString& sorgente) {
    return Compositore(sorgente).tutta();
}

}  // namespace kelvo::guida

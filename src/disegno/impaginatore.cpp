#include "disegno/impaginatore.h"

#include <QtGui/QTextLayout>
#include <algorithm>

#include "disegno/caratteri.h"

namespace kelvo::disegno {

QFont caratterePagina(double punti, bool grassetto) {
    QFont carattere = grassetto ? forte(punti * punto) : dati(punti * punto);
    carattere.setHintingPreference(QFont::PreferNoHinting);
    return carattere;
}

std::shared_ptr<QTextLayout> componi(const Parole& parole, double larghezza) {
    QString scritto = parole.inizio + parole.testo;
    scritto.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(QLatin1Char('\n'), QChar::LineSeparator);
    auto testo = std::make_shared<QTextLayout>(scritto, caratterePagina(parole.corpo, parole.grassetto));
    QTextOption scelte(parole.lato);
    scelte.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    scelte.setUseDesignMetrics(true);
    testo->setTextOption(scelte);
    QTextCharFormat colore;
    colore.setForeground(parole.colore);
    QList<QTextLayout::FormatRange> formati{{0, static_cast<int>(scritto.size()), colore}};
    if (!parole.inizio.isEmpty()) {
        QTextCharFormat spicca = colore;
        spicca.setFont(caratterePagina(parole.corpo, true));
        formati.push_back({0, static_cast<int>(parole.inizio.size()), spicca});
    }
    testo->setFormats(formati);
    testo->setCacheEnabled(true);
    testo->beginLayout();
    double y = 0.0;
    for (QTextLine riga = testo->createLine(); riga.isValid(); riga = testo->createLine()) {
        riga.setLineWidth(larghezza);
        riga.setPosition({0.0, y});
        y += riga.height();
    }
    testo->endLayout();
    return testo;
}

double altezzaRighe(const QTextLayout& testo, int da, int a) {
    return da >= a ? 0.0 : testo.lineAt(a - 1).y() + testo.lineAt(a - 1).height() - testo.lineAt(da).y();
}

Impaginatore::Impaginatore(const Foglio& ritto, const Foglio& coricato)
    : ritto_(ritto), coricato_(coricato), foglio_(ritto), y_(ritto.corpo.top()) {
    nuovaPagina();
}

void Impaginatore::nuovaPagina() {
    pagine_.emplace_back().foglio = foglio_.misura;
    y_ = corpo().top();
}

void Impaginatore::volta(bool coricata) {
    if (coricata == this->coricata()) {
        return;
    }
    const bool piena = !vuota();
    foglio_ = coricata ? coricato_ : ritto_;
    if (piena) {
        nuovaPagina();
    } else {
        pagine_.back().foglio = foglio_.misura;
        y_ = corpo().top();
    }
}

void Impaginatore::scorri(const std::shared_ptr<QTextLayout>& testo, double x) {
    const int righe = testo->lineCount();
    for (int da = 0; da < righe;) {
        int a = da;
        while (a < righe && altezzaRighe(*testo, da, a + 1) <= resto()) {
            ++a;
        }
        // Neither the first nor the last line of a paragraph stands alone on a page.
        const bool sola = da == 0 && righe > 1 && (a == 1 || (a == 2 && righe == 3));
        if ((a == da || sola) && !vuota()) {
            nuovaPagina();
            continue;
        }
        if (righe - a == 1 && a - da > 2) {
            --a;
        }
        a = std::max(a, da + 1);
        pagina().brani.push_back({testo, da, a, QPointF(corpo().left() + x, y_)});
        y_ += altezzaRighe(*testo, da, a);
        da = a;
        if (da < righe) {
            nuovaPagina();
        }
    }
}

}  // namespace kelvo::disegno

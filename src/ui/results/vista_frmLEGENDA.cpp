#include <QtGui/QPainter>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include "results/frmLEGENDA.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"
#include "ui/titoloAccanto.h"

namespace kelvo::ui {

namespace {

constexpr QSize misuraDistintivo{26, 18};
constexpr QSize misuraCampione{56, 18};
constexpr int lettera = 72;  ///< column of the badges, and of the samples
constexpr double latoSegno = 8.0;
constexpr double raggio = 2.0;

/// A level of service as the table shows it.
class Distinto final : public QWidget {
public:
    Distinto(std::string_view livello, QWidget* genitore)
        : QWidget(genitore), livello_(livello), aspetto_(distintivoLivello(livello)) {
        setFixedSize(misuraDistintivo);
    }

protected:
    void paintEvent(QPaintEvent* /*evento*/) override {
        QPainter pennello(this);
        pennello.setRenderHint(QPainter::Antialiasing);
        pennello.setPen(Qt::NoPen);
        pennello.setBrush(qcolore(aspetto_.fondo));
        pennello.drawRoundedRect(rect(), raggio, raggio);
        pennello.setPen(qcolore(aspetto_.testo));
        pennello.setFont(dati(punti::nota));
        pennello.drawText(rect(), Qt::AlignCenter, q(std::string{livello_}));
    }

private:
    std::string_view livello_;
    Distintivo aspetto_;
};

/// A cell as the table colours it; its ground is the control's.
class Campione final : public QWidget {
public:
    Campione(CampioneColore& colore, const ChiaveLegenda& chiave, QWidget* genitore)
        : QWidget(genitore), colore_(colore), chiave_(chiave) {
        setFixedSize(misuraCampione);
        auto* legame = new Legame(colore, *this);
        legame->mostra([this] { update(); });
    }

protected:
    void paintEvent(QPaintEvent* /*evento*/) override {
        QPainter pennello(this);
        pennello.fillRect(rect(), qcolore(colore_.colore()));
        pennello.setPen(qcolore(tinta::bordo));
        pennello.drawRect(rect().adjusted(0, 0, -1, -1));
        const std::string testo{chiave_.esempio};
        const QColor inchiostro = qcolore(inchiostroLeggibile(chiave_.inchiostro, colore_.colore()));
        if (chiave_.inchiostro == colori::critico && !testo.empty()) {
            critico(pennello, testo);
            return;
        }
        pennello.setPen(inchiostro);
        pennello.setFont(forte(punti::nota));
        const QRect dentro = rect().adjusted(misura::canale, 0, -misura::canale, 0);
        pennello.drawText(dentro, Qt::AlignRight | Qt::AlignVCenter, q(testo));
        segno(pennello, inchiostro, dentro);
        if (colore_.colore() == colori::sopraSoglia || colore_.colore() == colori::sottoSoglia) {
            const bool sopra = colore_.colore() == colori::sopraSoglia;
            pennello.fillRect(QRect(0, 0, misura::barraAlbero, height()),
                              qcolore(sopra ? tinta::errore : tinta::verde));
        }
    }

private:
    void critico(QPainter& pennello, const std::string& testo) const {
        const Distintivo aspetto = distintivoLivello(testo);
        pennello.setRenderHint(QPainter::Antialiasing);
        QRect posto({}, misuraDistintivo);
        posto.setHeight(height());
        posto.moveCenter(rect().center());
        pennello.setPen(Qt::NoPen);
        pennello.setBrush(qcolore(aspetto.fondo));
        pennello.drawRoundedRect(posto, raggio, raggio);
        pennello.setPen(qcolore(aspetto.testo));
        pennello.setFont(forte(punti::nota));
        pennello.drawText(posto, Qt::AlignCenter, q(testo));
    }

    void segno(QPainter& pennello, const QColor& inchiostro, const QRect& dentro) const {
        using Segno = OrnamentoCella::Segno;
        if (chiave_.segno != Segno::massimo && chiave_.segno != Segno::minimo) {
            return;
        }
        const bool su = chiave_.segno == Segno::massimo;
        const QRectF quadro(dentro.left(), dentro.center().y() - latoSegno / 2.0 + 1.0, latoSegno, latoSegno - 1.0);
        pennello.setRenderHint(QPainter::Antialiasing);
        pennello.setPen(Qt::NoPen);
        pennello.setBrush(inchiostro);
        pennello.drawPolygon(
            su ? QPolygonF{{quadro.bottomLeft(), quadro.bottomRight(), QPointF(quadro.center().x(), quadro.top())}}
               : QPolygonF{{quadro.topLeft(), quadro.topRight(), QPointF(quadro.center().x(), quadro.bottom())}});
    }

    CampioneColore& colore_;
    const ChiaveLegenda& chiave_;
};

class Vista final : public VistaFinestra {
public:
    Vista(frmLEGENDA& f, QWidget* genitore) : VistaFinestra(f, genitore, Forma::dialogo) {
        titolo(f);
        corpo()->layout()->setContentsMargins(misura::margine, misura::spazioStretto, misura::margine,
                                              misura::spazioStretto);
        colonna()->setSpacing(misura::spazio);
        auto* testa = collega(f.lblLOS, corpo());
        testa->setFont(forte(punti::corpo));
        colonna()->addWidget(testa);
        colonna()->addWidget(livelli(f));
        colonna()->addWidget(campioni(f));
        chiudiDisposizione();
    }

private:
    void titolo(frmLEGENDA& f) {
        QHBoxLayout* riga = titoloAccanto(*this);
        auto* chiudi = new QToolButton(riga->parentWidget());
        chiudi->setText(QStringLiteral("✕"));
        chiudi->setFont(dati(punti::corpo));
        chiudi->setAutoRaise(true);
        chiudi->setFocusPolicy(Qt::TabFocus);
        chiudi->setAccessibleName(q(f.cmdChiudi.testo()));
        chiudi->setToolTip(q(f.cmdChiudi.testo()));
        auto* legame = new Legame(f.cmdChiudi, *chiudi);
        legame->mostra({});
        QObject::connect(chiudi, &QToolButton::clicked, legame, [&f] { f.cmdChiudi.premi(); });
        riga->addWidget(chiudi);
    }

    /// Each level by its badge, as the table shows it, and its bounds.
    QWidget* livelli(frmLEGENDA& f) {
        auto* tavola = new QWidget(corpo());
        auto* piano = griglia(*tavola);
        for (std::size_t i = 0; i < righeLegenda.size(); ++i) {
            const RigaLegenda& riga = righeLegenda[i];
            auto* limiti = new QLabel(q(std::string{riga.limiti}), tavola);
            limiti->setFont(dati(punti::corpo));
            auto* legame = new Legame(f.lblLivelli[i], *limiti);
            legame->mostra([&f, i, limiti] { limiti->setAccessibleName(q(f.lblLivelli[i].testo())); });
            piano->addWidget(new Distinto(riga.lettera, tavola), static_cast<int>(i), 0);
            piano->addWidget(limiti, static_cast<int>(i), 1);
        }
        return tavola;
    }

    QWidget* campioni(frmLEGENDA& f) {
        auto* tavola = new QWidget(corpo());
        auto* piano = griglia(*tavola);
        for (std::size_t i = 0; i < chiaviLegenda.size(); ++i) {
            QLabel* nome = collega(f.lblColori[i], tavola);
            nome->setFont(dati(punti::corpo));
            piano->addWidget(new Campione(f.ctlColori[i], chiaviLegenda[i], tavola), static_cast<int>(i), 0);
            piano->addWidget(nome, static_cast<int>(i), 1);
        }
        return tavola;
    }

    static QGridLayout* griglia(QWidget& tavola) {
        auto* piano = new QGridLayout(&tavola);
        piano->setContentsMargins(0, 0, 0, 0);
        piano->setHorizontalSpacing(misura::spazio);
        piano->setVerticalSpacing(misura::spazioSpunte);
        piano->setColumnMinimumWidth(0, lettera);
        piano->setColumnStretch(1, 1);
        return piano;
    }
};

}  // namespace

VistaFinestra* vista_frmLEGENDA(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmLEGENDA&>(finestra), genitore);
}

}  // namespace kelvo::ui

#include <QtCore/QSize>
#include <QtGui/QShortcut>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QVBoxLayout>

#include "shell/frmAiuto.h"
#include "ui/VistaPagina.h"
#include "ui/icone.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

constexpr QSize misuraPagina{560, 420};
constexpr QSize paginaMinima{320, 200};

/// The page as large as its place is proposed to be; the user may make the window smaller or larger.
class Vista final : public VistaFinestra {
public:
    Vista(frmAiuto& f, QWidget* genitore) : VistaFinestra(f, genitore, Forma::dialogo) {
        larghezzaColonna(0);
        destra()->setSpacing(misura::spazio);
        destra()->addLayout(comandi(f));
        auto* pagina = collega(f.ctlPagina, corpo());
        pagina->setMinimumSize(paginaMinima);
        destra()->addWidget(pagina, 1);
        auto* avviso = collega(f.lblAvviso, corpo());
        avviso->setWordWrap(true);
        avviso->setFont(dati(punti::nota));
        destra()->addWidget(avviso);
        alPiede(collega(f.cmdGuida, this));
        auto* chiudi = qobject_cast<QPushButton*>(collega(f.cmdChiudi, this));
        chiudi->setDefault(true);
        alPiede(chiudi);
        chiudiDisposizione();
        scorciatoia(QKeySequence::Back, f.cmdIndietro);
        scorciatoia(QKeySequence::Forward, f.cmdAvanti);
        f.allaChiusura = [this] { window()->close(); };
    }
    ~Vista() override { dynamic_cast<frmAiuto&>(finestra()).allaChiusura = {}; }
    Vista(const Vista&) = delete;
    Vista& operator=(const Vista&) = delete;
    bool ridimensionabile() const override { return true; }
    QSize sizeHint() const override { return VistaFinestra::sizeHint().expandedTo(misuraPagina); }

private:
    QHBoxLayout* comandi(frmAiuto& f) {
        auto* riga = new QHBoxLayout;
        riga->setSpacing(misura::spazio);
        for (const auto& [bottone, segno] : {std::pair{&f.cmdIndietro, "Indietro"}, std::pair{&f.cmdAvanti, "Avanti"},
                                             std::pair{&f.cmdIndice, "Help"}}) {
            auto* widget = collega(*bottone, corpo());
            widget->setIcon(icona(segno, false));
            widget->setIconSize({misura::icona, misura::icona});
            riga->addWidget(widget);
        }
        auto* titolo = collega(f.sottotitolo, corpo());
        titolo->setFont(dati(punti::nota));
        titolo->setProperty("quieta", true);
        titolo->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        titolo->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        riga->addWidget(titolo, 1);
        return riga;
    }
    void scorciatoia(QKeySequence::StandardKey tasti, Bottone& bottone) {
        auto* premuta = new QShortcut(QKeySequence(tasti), this);
        QObject::connect(premuta, &QShortcut::activated, this, [&bottone] { bottone.premi(); });
    }
};

}  // namespace

VistaFinestra* vista_frmAiuto(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmAiuto&>(finestra), genitore);
}

}  // namespace kelvo::ui

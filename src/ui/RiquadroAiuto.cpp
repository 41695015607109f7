#include "ui/RiquadroAiuto.h"

#include <QtCore/QUrl>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QTextBrowser>
#include <QtWidgets/QVBoxLayout>

#include "ui/Figura.h"
#include "ui/VistaFinestra.h"
#include "ui/VistaPagina.h"
#include "ui/icone.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// The page: as high as it has to be at least where it stands alone, so that it takes what others leave.
class Pagina final : public QTextBrowser {
public:
    using QTextBrowser::QTextBrowser;
    bool sola = false;
    QSize sizeHint() const override {
        return sola ? QSize(QTextBrowser::sizeHint().width(), minimumHeight()) : QTextBrowser::sizeHint();
    }
};

}  // namespace

RiquadroAiuto::RiquadroAiuto(PannelloAiuto& aiuto, const QString& titolo, QWidget* genitore)
    : QFrame(genitore),
      aiuto_(aiuto),
      piano_(new QVBoxLayout(this)),
      figura_(new Figura(this)),
      testo_(new Pagina(this)) {
    piano_->setContentsMargins(misura::margine, misura::margineVerticale, misura::margine, misura::margineVerticale);
    auto* testata = new QLabel(titolo, this);
    testata->setObjectName(QStringLiteral("titoloPannello"));
    testata->setFont(forte(punti::gruppo));
    const auto linea = [this] {
        auto* riga = new QFrame(this);
        riga->setObjectName(QStringLiteral("rigaPannello"));
        return riga;
    };
    piano_->addWidget(testata);
    piano_->addWidget(linea());
    piano_->addWidget(figura_, 1);
    piano_->addWidget(linea());
    testo_->setFixedHeight(misura::aiuto);
    testo_->setFocusPolicy(Qt::NoFocus);
    testo_->setOpenLinks(false);
    vestiPagina(*testo_->document());
    QObject::connect(testo_, &QTextBrowser::anchorClicked, this, &RiquadroAiuto::collegamento);
    testo_->setFont(dati(punti::corpo));
    piano_->addWidget(testo_);
    auto* legame = new Legame(aiuto_, *testo_);
    legame->mostra([this] { mostra(); });
    setMinimumWidth(misura::aiutoLargo);
    setObjectName(QStringLiteral("pannelloDati"));
}

void RiquadroAiuto::figura(const std::string& risorsa) {
    if (esisteImmagine(risorsa)) {
        risorsa_ = risorsa;
    }
    mostra();
}

void RiquadroAiuto::segui(Immagine& immagine) {
    auto* legame = new Legame(immagine, *figura_);
    legame->mostra([this, &immagine] { figura(immagine.risorsa()); });
}

void RiquadroAiuto::sopra(QWidget* oggetto) {
    constexpr int parteSopra = 3;
    constexpr int partePagina = 2;
    delete piano_->replaceWidget(figura_, oggetto);
    piano_->removeWidget(testo_);
    piano_->setStretchFactor(oggetto, parteSopra);
    auto* pagina = new QHBoxLayout;
    pagina->setSpacing(misura::margine);
    testo_->setMinimumHeight(misura::aiuto);
    testo_->setMaximumHeight(QWIDGETSIZE_MAX);
    pagina->addWidget(testo_, 1);
    // On a narrow window the picture gives way down to 60 %.
    figura_->setMinimumWidth(misura::figuraAccanto * 3 / 5);
    figura_->setMaximumWidth(misura::figuraAccanto);
    pagina->addWidget(figura_);
    piano_->addLayout(pagina, partePagina);
}

void RiquadroAiuto::alPosto(QWidget* oggetto) {
    delete piano_->replaceWidget(figura_, oggetto);
    piano_->setStretchFactor(oggetto, 1);
    figura_->hide();
}

void RiquadroAiuto::soloPagina() {
    figura_->hide();
    for (QFrame* linea : findChildren<QFrame*>(QStringLiteral("rigaPannello"), Qt::FindDirectChildrenOnly)) {
        linea->hide();
    }
    piano_->setContentsMargins(misura::margine, misura::spazio, misura::margine, misura::spazio);
    piano_->setSpacing(misura::canale);
    static_cast<Pagina*>(testo_)->sola = true;
    testo_->setMinimumHeight(misura::paginaSola);
    testo_->setMaximumHeight(QWIDGETSIZE_MAX);
    piano_->setStretchFactor(testo_, 1);
}

/// A page that another one leads to is shown by the help window: the pane stays with its field.
void RiquadroAiuto::collegamento(const QUrl& indirizzo) {
    for (QWidget* sopra = parentWidget(); sopra != nullptr; sopra = sopra->parentWidget()) {
        if (auto* vista = qobject_cast<VistaFinestra*>(sopra)) {
            vista->finestra().chiediAiuto(meta(indirizzo));
            return;
        }
    }
}

void RiquadroAiuto::mostra() {
    const QString pagina = q(aiuto_.pagina());
    testo_->setHtml(testoPagina(pagina));
    const std::string propria = s(pagina.section(QLatin1Char('.'), 0, 0));
    figura_->risorsa(esisteImmagine(propria) ? propria : risorsa_);
}

}  // namespace kelvo::ui

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QVBoxLayout>
#include <algorithm>
#include <string_view>

#include "cad/frmEsportaDXF.h"
#include "ui/RiquadroAiuto.h"
#include "ui/VistaPianta.h"
#include "ui/cad/viste.h"
#include "ui/legami.h"
#include "ui/legamiScelte.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

QString fraParentesi(std::string_view unita) {
    return unita.empty() ? QString{} : QStringLiteral("[%1]").arg(q(std::string{unita}));
}

class Vista final : public VistaFinestra {
public:
    Vista(frmEsportaDXF& f, QWidget* genitore) : VistaFinestra(f, genitore, Forma::dialogo), f_(f) {
        larghezzaColonna(QWIDGETSIZE_MAX);
        constexpr int m = misura::margine;
        corpo()->layout()->setContentsMargins(m, m, m, m);
        colonna()->parentWidget()->setMinimumWidth(misura::colonnaStretta);
        colonna()->setSpacing(misura::spazio);
        colonna()->addWidget(direzioni());
        colonna()->addWidget(contenuto());
        auto* riga = new QHBoxLayout;
        riga->setSpacing(misura::margine);
        riga->addLayout(ipotesi());
        // The names of the legs stand beside their fields: without them the plan is larger.
        auto* pianta = new VistaPianta(
            [this] { return VistaPianta::Soggetto{.dati = f_.piantaMostrata(), .opzioni = {.nomi = false}}; }, corpo());
        auto* aiuto = aggiungiAiuto(q(f.frAnteprima.titolo()));
        aiuto->alPosto(pianta);
        aiuto->setMinimumWidth(misura::colonna);
        destra()->removeWidget(aiuto);
        riga->addWidget(aiuto, 1);
        destra()->addLayout(riga, 1);
        auto* esporta = qobject_cast<QPushButton*>(collega(f.cmdEsporta, this));
        esporta->setDefault(true);
        alPiede(collega(f.cmdPredefiniti, this));
        alPiede(esporta);
        alPiede(collega(f.cmdAnnulla, this));
        chiudiDisposizione();
        legamePianta_ = f.piantaMutata().connect([pianta] { pianta->aggiorna(); });
        legameChiusura_ = f.chiusura().connect([this] { window()->close(); });
    }
    ~Vista() override {
        legamePianta_.disconnect();
        legameChiusura_.disconnect();
    }
    Vista(const Vista&) = delete;
    Vista& operator=(const Vista&) = delete;
    bool ridimensionabile() const override { return true; }

private:
    QWidget* direzioni() {
        Pannello* pannello = collega(f_.frDirezioni, corpo());
        for (std::size_t i = 0; i < f_.txtDirezioni.size(); ++i) {
            if (f_.txtDirezioni.at(i).visibile()) {
                pannello->riga(f_.lblDirezioni.at(i), collega(f_.txtDirezioni.at(i), pannello),
                               fraParentesi(frmEsportaDXF::campoDirezione().unita));
            }
        }
        pannello->avviso(f_.lblDifetto);
        return pannello;
    }

    QWidget* contenuto() {
        Pannello* pannello = collega(f_.frContenuto, corpo());
        pannello->fitto();
        for (Casella& casella : f_.chkGruppi) {
            pannello->larga(collega(casella, pannello), Qt::AlignLeft);
        }
        return pannello;
    }

    /// A panel for each group of assumptions, their fields in one column.
    QVBoxLayout* ipotesi() {
        auto* colonna = new QVBoxLayout;
        colonna->setSpacing(misura::spazio);
        std::vector<Pannello*> pannelli;
        std::string_view gruppo;
        for (std::size_t i = 0; i < f_.txtIpotesi.size(); ++i) {
            const dxf::CampoIpotesi& campo = dxf::campiIpotesi.at(i);
            if (campo.gruppo != gruppo) {
                gruppo = campo.gruppo;
                pannelli.push_back(new Pannello(q(std::string{gruppo}), corpo()));
                colonna->addWidget(pannelli.back());
            }
            pannelli.back()->riga(f_.lblIpotesi.at(i), collega(f_.txtIpotesi.at(i), pannelli.back()),
                                  fraParentesi(campo.unita), q(intervalloAmmesso(frmEsportaDXF::campoNumerico(campo))));
        }
        int massima = 0;
        for (const Pannello* pannello : pannelli) {
            massima = std::max(massima, pannello->larghezzaEtichette());
        }
        for (Pannello* pannello : pannelli) {
            pannello->larghezzaEtichette(massima);
        }
        colonna->addStretch(1);
        return colonna;
    }

    frmEsportaDXF& f_;
    sigc::connection legamePianta_;
    sigc::connection legameChiusura_;
};

}  // namespace

VistaFinestra* vista_frmEsportaDXF(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmEsportaDXF&>(finestra), genitore);
}

}  // namespace kelvo::ui

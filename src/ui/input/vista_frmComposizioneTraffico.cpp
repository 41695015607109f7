#include <QtWidgets/QFrame>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include "input/frmComposizioneTraffico.h"
#include "ui/RiquadroAiuto.h"
#include "ui/VistaGrafico.h"
#include "ui/legami.h"
#include "ui/shell/viste.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

/// Width of the column of fields in the design.
constexpr int colonnaCampi = 480;

/// Columns of the fields.
enum Colonna { nome, percento, stacco, equivalenti, segno, riferimento, colonne };

QLabel* parola(const QString& testo, const QFont& carattere, QWidget* genitore) {
    auto* label = new QLabel(testo, genitore);
    label->setFont(carattere);
    return label;
}

/// The seven classes under their groups: share, coefficient and reference side by side; the two charts at the right.
class Vista final : public VistaFinestra {
public:
    Vista(frmComposizioneTraffico& f, QWidget* genitore) : VistaFinestra(f, genitore) {
        larghezzaColonna(colonnaCampi);
        campi(f);
        auto* aiuto = new RiquadroAiuto(f.ctlHelp, QStringLiteral("Descrizione del parametro"), corpo());
        aiuto->soloPagina();
        constexpr int tutto = 100;  // of the height that is left
        colonna()->addWidget(aiuto, tutto);
        grafici(f);
        chiudiDisposizione();
    }

private:
    void campi(frmComposizioneTraffico& f) {
        auto* pannello = new Pannello({}, corpo());
        auto* tabella = new QWidget(pannello);
        griglia_ = new QGridLayout(tabella);
        griglia_->setContentsMargins(0, 0, 0, 0);
        griglia_->setHorizontalSpacing(misura::spazio);
        griglia_->setVerticalSpacing(misura::canale);
        griglia_->setColumnStretch(nome, 1);
        griglia_->setColumnMinimumWidth(stacco, misura::spazio);
        testate(tabella);
        std::string_view gruppo;
        for (std::size_t i = 0; i < f.righe.size(); ++i) {
            if (categorieTraffico[i].gruppo != gruppo) {
                gruppo = categorieTraffico[i].gruppo;
                auto* titolo = parola(q(std::string{gruppo}), forte(punti::corpo), tabella);
                titolo->setObjectName(QStringLiteral("titoloPannello"));
                griglia_->addWidget(titolo, righe_++, nome, 1, colonne);
            }
            categoria(f.righe[i], tabella);
        }
        pannello->larga(tabella);
        for (Etichetta* testo : {&f.lblTotale, &f.lblErroreTotale}) {
            QLabel* totale = collega(*testo, pannello);
            totale->setFont(forte(punti::corpo));
            totale->setWordWrap(true);
            pannello->larga(totale);
        }
        pannello->avviso(f.lblDiversi);
        pannello->avviso(f.lblRiferimento);
        colonna()->addWidget(pannello);
    }

    void testate(QWidget* tabella) {
        const auto metti = [&](const QString& testo, int colonna) {
            auto* testata = parola(testo, dati(punti::nota), tabella);
            testata->setProperty("quieta", true);
            testata->setAlignment(Qt::AlignRight | Qt::AlignBottom);
            griglia_->addWidget(testata, righe_, colonna);
        };
        metti(QStringLiteral("[%]"), percento);
        metti(QStringLiteral("Progetto\n[veicoli/eq]"), equivalenti);
        metti(QStringLiteral("Riferimento\n[veicoli/eq]"), riferimento);
        ++righe_;
    }

    void categoria(frmComposizioneTraffico::Riga& riga, QWidget* tabella) {
        QLabel* etichetta = collega(riga.lblCategoria, tabella);
        QWidget* quota = collega(riga.txtPercento, tabella);
        QWidget* coefficiente = collega(riga.txtEquivalenti, tabella);
        QWidget* tenuto = collega(riga.txtRiferimento, tabella);
        etichetta->setBuddy(quota);
        const QString chi = q(riga.lblCategoria.testo());
        coefficiente->setAccessibleName(chi + QStringLiteral(", veicoli equivalenti del progetto"));
        tenuto->setAccessibleName(chi + QStringLiteral(", veicoli equivalenti di riferimento"));
        for (QWidget* campo : {quota, coefficiente, tenuto}) {
            campo->setFixedWidth(misura::campoCorto);
        }
        QLabel* diverso = collega(riga.lblDiverso, tabella);
        diverso->setFont(forte(punti::gruppo));
        diverso->setAlignment(Qt::AlignCenter);
        // The sign keeps its room while it is hidden: nothing moves when it comes.
        QSizePolicy posto = diverso->sizePolicy();
        posto.setRetainSizeWhenHidden(true);
        diverso->setSizePolicy(posto);
        griglia_->addWidget(etichetta, righe_, nome);
        griglia_->addWidget(quota, righe_, percento);
        griglia_->addWidget(coefficiente, righe_, equivalenti);
        griglia_->addWidget(diverso, righe_, segno);
        griglia_->addWidget(tenuto, righe_, riferimento);
        ++righe_;
    }

    void grafici(frmComposizioneTraffico& f) {
        auto* cornice = new QFrame(corpo());
        cornice->setObjectName(QStringLiteral("pannelloDati"));
        auto* piano = new QVBoxLayout(cornice);
        piano->setContentsMargins(misura::margine, misura::margineVerticale, misura::margine, misura::margineVerticale);
        piano->setSpacing(misura::margine);
        piano->addWidget(collega(f.ctlGraphPie, cornice), 1);
        piano->addWidget(collega(f.ctlGraphBar, cornice), 1);
        destra()->addWidget(cornice, 1);
    }

    QGridLayout* griglia_ = nullptr;
    int righe_ = 0;
};

}  // namespace

VistaFinestra* vista_frmComposizioneTraffico(Finestra& finestra, QWidget* genitore) {
    return new Vista(dynamic_cast<frmComposizioneTraffico&>(finestra), genitore);
}

}  // namespace kelvo::ui

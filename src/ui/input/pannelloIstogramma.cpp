#include "ui/input/pannelloIstogramma.h"

#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QVBoxLayout>

#include "ui/VistaGrafico.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

QWidget* pannelloIstogramma(Grafico& grafico, Casella& valori, QWidget* genitore) {
    auto* cornice = new QFrame(genitore);
    cornice->setObjectName(QStringLiteral("pannelloDati"));
    auto* piano = new QVBoxLayout(cornice);
    piano->setContentsMargins(misura::margine, misura::spazio, misura::margine, misura::spazio);
    auto* testata = new QHBoxLayout;
    auto* titolo = new QLabel(QStringLiteral("Flusso per segmento di tempo"), cornice);
    titolo->setObjectName(QStringLiteral("titoloPannello"));
    titolo->setFont(forte(punti::gruppo));
    testata->addWidget(titolo, 1);
    testata->addWidget(collega(valori, cornice));
    piano->addLayout(testata);
    auto* linea = new QFrame(cornice);
    linea->setObjectName(QStringLiteral("rigaPannello"));
    piano->addWidget(linea);
    piano->addWidget(collega(grafico, cornice), 1);
    return cornice;
}

}  // namespace kelvo::ui

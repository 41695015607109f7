#include "guida/tavole.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>

#include "base/numeri.h"
#include "guida/voci.h"
#include "input/misureIngresso.h"
#include "shell/barraPrincipale.h"
#include "shell/menuPrincipale.h"
#include "shell/servizi/menuDati.h"
#include "shell/servizi/scorciatoie.h"

namespace kelvo::guida {

namespace {

QString q(std::string_view testo) {
    return QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size()));
}

QString tasti(std::string_view quali) {
    return QLatin1Char('`') + QString::fromStdString(nomeTasti(quali)) + QLatin1Char('`');
}

/// What a key of the windows' tool bars does, in words.
struct Azione {
    std::string_view tasto;
    const char* parole;
};
constexpr std::array azioni{
    Azione{"keyCalcola", "Calcola, nelle finestre dei risultati"},
    Azione{"keyAnalizza", "Analizza, nel controllo del progetto"},
    Azione{"AggiornaDati", "Aggiorna dati: registra i campi della finestra nel progetto"},
    Azione{"Refresh", "Refresh: rilegge la finestra dal progetto e scarta ciò che non è registrato"},
    Azione{"keyAnteprima", "Anteprima: il testo dei risultati, pronto da salvare e copiare"},
    Azione{"keyRelazione", "Relazione"},
    Azione{"keyExcel", "Excel: il foglio di calcolo dei risultati"},
    Azione{"Archivio", "Archivio: importa da un altro progetto o da un file CSV"},
};

/// An entry that the main window appends to a menu by itself.
struct VoceAppesa {
    std::string_view menu;
    const char* testo;
    std::string_view scorciatoia;
};
constexpr std::array vociAppese{
    VoceAppesa{"mnuFile", "Progetti recenti", {}},
    VoceAppesa{"mnuHelp", "Aiuto sul campo", tastoAiuto},
    VoceAppesa{"mnuHelp", "Indice dell'aiuto", {}},
};

Tabella scorciatoie() {
    Tabella tavola{{Qt::AlignLeft, Qt::AlignLeft}, {QStringLiteral("Tasti"), QStringLiteral("Azione")}, {}};
    const auto righe = {righeFile(), righePerTipo(), righeCoda(), righePropriePerProgetto()};
    const auto testoDi = [&](std::string_view chiave) {
        QString testo;
        for (const auto& tutte : righe) {
            for (const RigaMenu& riga : tutte) {
                if (riga.chiave == chiave) {
                    testo = q(riga.testo).remove(QStringLiteral("..."));
                }
            }
        }
        return testo;
    };
    for (const auto& tutte : righe) {
        for (const RigaMenu& riga : tutte) {
            if (!riga.scorciatoia.empty()) {
                tavola.righe << QStringList{tasti(riga.scorciatoia), testoDi(riga.chiave)};
            }
        }
    }
    for (const ScorciatoiaAggiunta& aggiunta : scorciatoieAggiunte) {
        tavola.righe << QStringList{tasti(aggiunta.tasti), testoDi(aggiunta.chiave)};
    }
    tavola.righe << QStringList{
        tasti(tastoAiuto),
        QStringLiteral("L'aiuto del campo o della finestra in uso; senza un progetto, questa guida")};
    tavola.righe << QStringList{tasti(tastoAlbero), QStringLiteral("Passa dall'albero alla finestra e ritorno")};
    for (const ScorciatoiaTasto& tasto : scorciatoieTasti) {
        const auto* const trovata =
            std::find_if(azioni.begin(), azioni.end(), [&](const Azione& a) { return a.tasto == tasto.tasto; });
        if (trovata == azioni.end()) {
            throw std::runtime_error("tasto senza parole: " + std::string{tasto.tasto});
        }
        tavola.righe << QStringList{tasti(tasto.tasti), QString::fromUtf8(trovata->parole)};
    }
    tavola.righe << QStringList{tasti(MenuDati::tastoStampa),
                                QStringLiteral("Stampa la finestra: risultati, geometria, matrice delle svolte")};
    return tavola;
}

Tabella menu() {
    Tabella tavola{{Qt::AlignLeft, Qt::AlignLeft, Qt::AlignLeft},
                   {QStringLiteral("Menu"), QStringLiteral("Voce"), QStringLiteral("Tasti")},
                   {}};
    for (const MenuPrincipale& principale : menuPrincipali) {
        QString sotto;
        for (const auto& tutte : {righeFile(), righePerTipo(), righeCoda(), righePropriePerProgetto()}) {
            for (const RigaMenu& riga : tutte) {
                if (riga.menu != principale.chiave || riga.tipo == TipoRiga::separatore) {
                    continue;
                }
                const QString testo = riga.testo.empty() ? QStringLiteral("*una voce per ogni ramo*") : q(riga.testo);
                if (riga.tipo == TipoRiga::sottomenu) {
                    sotto = testo;
                    continue;
                }
                sotto = riga.livello == 0 ? QString{} : sotto;
                tavola.righe << QStringList{q(principale.testo),
                                            sotto.isEmpty() ? testo : sotto + QStringLiteral(" › ") + testo,
                                            riga.scorciatoia.empty() ? QString{} : tasti(riga.scorciatoia)};
            }
        }
        for (const VoceAppesa& voce : vociAppese) {
            if (voce.menu == principale.chiave) {
                tavola.righe << QStringList{q(principale.testo), QString::fromUtf8(voce.testo),
                                            voce.scorciatoia.empty() ? QString{} : tasti(voce.scorciatoia)};
            }
        }
    }
    return tavola;
}

Tabella barra() {
    Tabella tavola{{Qt::AlignLeft, Qt::AlignLeft}, {QStringLiteral("Pulsante"), QStringLiteral("Che cosa fa")}, {}};
    for (const RigaBarra& riga : barraPrincipale) {
        const QString chiave = q(riga.chiave);
        tavola.righe << QStringList{
            chiave, riga.suggerimento.empty() ? QStringLiteral("Localizzazione geografica") : q(riga.suggerimento)};
    }
    return tavola;
}

Tabella misure() {
    Tabella tavola{{Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignHCenter, Qt::AlignRight, Qt::AlignRight},
                   {QStringLiteral("Misura"), QStringLiteral("Simbolo"), QStringLiteral("Unità"),
                    QStringLiteral("Ammessa dal campo"), QStringLiteral("Consigliata")},
                   {}};
    const auto cifra = [](double valore) { return QString::fromStdString(formatta(valore, "#0.00")); };
    for (const MisuraIngresso& misura : misureIngresso) {
        const CampoNumerico& campo = misura.campo;
        const QString ammessa = QString::fromStdString(intervalloAmmesso(campo));
        tavola.righe << QStringList{q(campo.nome), QLatin1Char('*') + q(misura.simbolo) + QLatin1Char('*'),
                                    q(campo.unita), ammessa,
                                    cifra(static_cast<double>(misura.consigliatoMinimo)) + QStringLiteral(" ÷ ") +
                                        cifra(static_cast<double>(misura.consigliatoMassimo))};
    }
    return tavola;
}

}  // namespace

Tabella tavola(const QString& nome) {
    if (nome == QStringLiteral("scorciatoie")) {
        return scorciatoie();
    }
    if (nome == QStringLiteral("menu")) {
        return menu();
    }
    if (nome == QStringLiteral("barra")) {
        return barra();
    }
    if (nome == QStringLiteral("misure")) {
        return misure();
    }
    const QString voci = QStringLiteral("voci-");
    if (nome.startsWith(voci)) {
        if (auto trovata = tavolaVoci(nome.mid(voci.size()))) {
            return *trovata;
        }
    }
    throw std::runtime_error("tavola sconosciuta: " + nome.toStdString());
}

}  // namespace kelvo::guida

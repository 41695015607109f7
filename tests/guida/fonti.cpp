#include "guida/fonti.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <memory>

#include "comune/cartella.h"
#include "disegno/AmbienteDisegno.h"
#include "guida/tavole.h"

namespace kelvo::prove {

namespace {

/// The faces, for whatever is measured.
class Caratteri final : public testing::Environment {
public:
    void SetUp() override { ambiente_ = std::make_unique<disegno::AmbienteDisegno>(KELVO_CARTELLA "/Caratteri"); }
    void TearDown() override { ambiente_.reset(); }

private:
    std::unique_ptr<disegno::AmbienteDisegno> ambiente_;
};

const testing::Environment* const caratteri = testing::AddGlobalTestEnvironment(new Caratteri);

}  // namespace

QString fonte(const QString& nome) {
    return QStringLiteral(KELVO_SORGENTI "/assets/Guida/") + nome;
}

guida::Fonti fontiVuote() {
    guida::Fonti fonti;
    fonti.valore = [](const QString& /*nome*/) { return QString{}; };
    fonti.tavola = [](const QString& nome) { return guida::tavola(nome); };
    fonti.uscita = [](const QString& /*comando*/) { return QString{}; };
    fonti.dovunque = [](const QString& file) {
        QFile aperto(QFileInfo(fonte(QStringLiteral("UserGuide.md"))).dir().filePath(file));
        aperto.open(QIODevice::ReadOnly);
        return QString::fromUtf8(aperto.readAll());
    };
    return fonti;
}

guida::Documento documento(const QString& nome) {
    return guida::leggi(fonte(nome), fontiVuote());
}

QString testo(const guida::Documento& documento) {
    QString tutto;
    for (const guida::Blocco& blocco : documento.blocchi) {
        if (const auto* titolo = std::get_if<guida::Titolo>(&blocco)) {
            tutto += titolo->testo;
        } else if (const auto* paragrafo = std::get_if<guida::Paragrafo>(&blocco)) {
            tutto += paragrafo->testo;
        } else if (const auto* elenco = std::get_if<guida::Elenco>(&blocco)) {
            tutto += elenco->voci.join(QLatin1Char('\n'));
        } else if (const auto* avviso = std::get_if<guida::Avviso>(&blocco)) {
            tutto += avviso->testo;
        } else if (const auto* codice = std::get_if<guida::Codice>(&blocco)) {
            tutto += codice->testo;
        } else if (const auto* figura = std::get_if<guida::Figura>(&blocco)) {
            tutto += figura->didascalia;
        } else if (const auto* tabella = std::get_if<guida::Tabella>(&blocco)) {
            tutto += tabella->testata.join(QLatin1Char('\t'));
            for (const QStringList& riga : tabella->righe) {
                tutto += QLatin1Char('\n') + riga.join(QLatin1Char('\t'));
            }
        }
        tutto += QLatin1Char('\n');
    }
    return tutto;
}

guida::Documento daTesto(const std::string& testo, const guida::Fonti& fonti) {
    const CartellaTemporanea cartella;
    scriviContenuto(cartella.file("prova.md"), testo);
    return guida::leggi(QString::fromStdString(cartella.file("prova.md")), fonti);
}

}  // namespace kelvo::prove

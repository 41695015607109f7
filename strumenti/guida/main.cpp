#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtGui/QFontDatabase>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <cstdio>
#include <exception>
#include <stdexcept>

#include "disegno/AmbienteDisegno.h"
#include "disegno/pittorePianta.h"
#include "guida/fogli.h"
#include "guida/lettore.h"
#include "guida/pdf.h"
#include "guida/tavole.h"
#include "guida/valori.h"
#include "model/Rotonda.h"

namespace {

using namespace kelvo;  // NOLINT(google-build-using-namespace)

constexpr const char* progettoImmagini = "Rotatoria_Viale_della_Stazione";

struct Cartelle {
    QString fonti;     ///< of the document
    QString immagini;  ///< pictures of the program; empty while only their names are asked for
    QString figure;    ///< drawings of the program
    QString progetti;
};

[[noreturn]] void guasto(const QString& testo) {
    throw std::runtime_error(testo.toStdString());
}

QString testoDi(const QString& percorso) {
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly)) {
        guasto(percorso + QStringLiteral(": il file non si apre"));
    }
    return QString::fromUtf8(file.readAll());
}

/// A drawing in vectors as a picture fine enough for print.
QImage disegno(const QString& percorso) {
    constexpr int largo = 900;
    QSvgRenderer pittore(percorso);
    if (!pittore.isValid()) {
        return {};
    }
    const QSize misura = pittore.defaultSize().scaled(largo, largo, Qt::KeepAspectRatio);
    QImage immagine(misura, QImage::Format_RGB32);
    immagine.fill(Qt::white);
    QPainter pennello(&immagine);
    pittore.render(&pennello);
    return immagine;
}

/// Names under which the pictures of the program may stand: of a window alone, or with the project that it shows.
QStringList nomiPossibili(const QString& nome) {
    return {nome, nome + QLatin1Char('-') + QLatin1String(progettoImmagini)};
}

QImage una(const Cartelle& cartelle, const QString& nome) {
    if (nome.endsWith(QStringLiteral(".svg"))) {
        return disegno(cartelle.figure + QLatin1Char('/') + nome);
    }
    for (const QString& possibile : nomiPossibili(nome)) {
        QImage letta(cartelle.immagini + QLatin1Char('/') + possibile + QStringLiteral(".png"));
        if (!letta.isNull()) {
            return letta;
        }
    }
    return {};
}

/// A picture, or several side by side ("A.svg+B.svg") as high as the first; null where one of them is missing.
QImage immagine(const Cartelle& cartelle, const QString& nomi) {
    constexpr int distacco = 30;
    QImage insieme;
    for (const QString& nome : nomi.split(QLatin1Char('+'))) {
        const QImage letta = una(cartelle, nome);
        if (letta.isNull() || insieme.isNull()) {
            insieme = letta;
        } else {
            const QImage accanto = letta.scaledToHeight(insieme.height(), Qt::SmoothTransformation);
            QImage nuova(insieme.width() + distacco + accanto.width(), insieme.height(), QImage::Format_RGB32);
            nuova.fill(Qt::white);
            QPainter pennello(&nuova);
            pennello.drawImage(0, 0, insieme);
            pennello.drawImage(insieme.width() + distacco, 0, accanto);
            pennello.end();
            insieme = nuova;
        }
        if (letta.isNull()) {
            return {};
        }
    }
    return insieme;
}

void dipingiEsempio(QPainter& pennello, const QRectF& dove, const QString& progetti) {
    Rotonda rotonda;
    std::string messaggio;
    bool esito = false;
    rotonda.Load((progetti + QLatin1Char('/') + QLatin1String(progettoImmagini) + QStringLiteral(".klv")).toStdString(),
                 messaggio, esito);
    if (!esito) {
        guasto(QString::fromStdString(messaggio));
    }
    constexpr double scala = 12.0;  // a pixel of the screen in units of a page
    pennello.save();
    pennello.translate(dove.topLeft());
    pennello.scale(scala, scala);
    disegno::dipingiPianta(pennello, pianta::costruisci(pianta::datiPianta(rotonda)),
                           QRectF(QPointF(0.0, 0.0), dove.size() / scala), {.testi = false});
    pennello.restore();
}

guida::Documento documento(const QString& fonte, guida::Valori& valori, bool soloNomi) {
    const QDir qui = QFileInfo(fonte).dir();
    if (QFile::exists(qui.filePath(QStringLiteral("valori.txt")))) {
        valori.leggi(qui.filePath(QStringLiteral("valori.txt")));
    }
    guida::Fonti fonti;
    fonti.valore = [&](const QString& nome) { return soloNomi ? QString{} : valori.testo(nome); };
    fonti.tavola = [](const QString& nome) { return guida::tavola(nome); };
    fonti.uscita = [&](const QString& comando) { return soloNomi ? QString{} : valori.uscita(comando); };
    fonti.dovunque = [&](const QString& file) { return testoDi(qui.filePath(file)); };
    return guida::leggi(fonte, fonti);
}

void elenca(const guida::Documento& documento, const QString& uscita) {
    QByteArray righe;
    for (const guida::ImmagineChiesta& chiesta : guida::immaginiChieste(documento)) {
        for (const QString& nome : nomiPossibili(chiesta.nome)) {
            righe += nome.toUtf8() + (chiesta.intera ? " intera\n" : " finestra\n");
        }
    }
    // What is as it was stays untouched: no picture has to be taken again.
    if (QFile::exists(uscita) && testoDi(uscita).toUtf8() == righe) {
        return;
    }
    QFile file(uscita);
    if (!file.open(QIODevice::WriteOnly) || file.write(righe) != righe.size()) {
        guasto(uscita + QStringLiteral(": il file non si scrive"));
    }
}

void componi(const guida::Documento& documento, const Cartelle& cartelle, const QString& versione,
             const QString& uscita) {
    if (const QStringList rotti = guida::legamiRotti(documento); !rotti.isEmpty()) {
        guasto(QStringLiteral("legami che non portano a nulla: ") + rotti.join(QStringLiteral(", ")));
    }
    const auto pezzi = guida::pezziDi(documento, [&](const QString& nome) { return immagine(cartelle, nome); });
    const guida::Dicitura dicitura{
        versione, [&](QPainter& pennello, const QRectF& dove) { dipingiEsempio(pennello, dove, cartelle.progetti); }};
    const guida::Fogli fogli = guida::fogliDi(documento, pezzi, dicitura);
    const QByteArray pdf = guida::pdfDi(fogli, {.titolo = QStringLiteral("Kelvo – ") + documento.titolo,
                                                .argomento = documento.argomento,
                                                .autore = QStringLiteral("Kelvo"),
                                                .lingua = QStringLiteral("it-IT")});
    QDir().mkpath(QFileInfo(uscita).path());
    QFile file(uscita);
    if (!file.open(QIODevice::WriteOnly) || file.write(pdf) != pdf.size()) {
        guasto(uscita + QStringLiteral(": il file non si scrive"));
    }
}

}  // namespace

/// kelvo-guida SOURCE OUTPUT [PICTURES]: makes a PDF of its sources, with pictures of the program from a folder.
/// kelvo-guida --elenco SOURCE LIST: writes the names of the pictures that they ask for.
int main(int argc, char** argv) {
    try {
        // Fonts go into the file in the order of a table whose order would be another in every run.
        QHashSeed::setDeterministicGlobalSeed();
        const QString programma = QStringLiteral(KELVO_CARTELLA);
        const disegno::AmbienteDisegno ambiente((programma + QStringLiteral("/Caratteri")).toStdString());
        QFontDatabase::addApplicationFont(QStringLiteral(KELVO_OPEN_SANS "/OpenSans-Italic.ttf"));
        QStringList parole;
        for (int i = 1; i < argc; ++i) {
            parole << QString::fromUtf8(argv[i]);
        }
        const bool elenco = parole.removeAll(QStringLiteral("--elenco")) > 0;
        if (parole.size() < 2 || parole.size() > 3) {
            std::fputs("uso: kelvo-guida FONTE USCITA [IMMAGINI]\n     kelvo-guida --elenco FONTE ELENCO\n", stderr);
            return 2;
        }
        const QString versione = QStringLiteral(KELVO_VERSIONE);
        const Cartelle cartelle{QFileInfo(parole[0]).path(), parole.value(2),
                                programma + QStringLiteral("/Immagini/figure"),
                                programma + QStringLiteral("/../Progetti")};
        guida::Valori valori(programma + QStringLiteral("/kelvo-cli"), QDir::cleanPath(cartelle.progetti), versione);
        const guida::Documento letto = documento(parole[0], valori, elenco);
        if (elenco) {
            elenca(letto, parole[1]);
        } else {
            componi(letto, cartelle, versione, parole[1]);
        }
        return 0;
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "kelvo-guida: %s\n", errore.what());
        return 1;
    }
}

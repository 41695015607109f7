#include "guida/pdf.h"

#include <QtCore/QBuffer>
#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <QtGui/QPageLayout>
#include <QtGui/QPageSize>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <stdexcept>

#include "guida/stile.h"

namespace kelvo::guida {

namespace {

[[noreturn]] void guasto(const char* testo) {
    throw std::runtime_error(testo);
}

QByteArray dipinto(const Fogli& fogli, const Proprieta& proprieta) {
    QByteArray byte;
    QBuffer memoria(&byte);
    memoria.open(QIODevice::WriteOnly);
    QPdfWriter scrittore(&memoria);
    constexpr int fine = 1200;
    scrittore.setResolution(fine);
    scrittore.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF()));
    scrittore.setTitle(proprieta.titolo);
    scrittore.setCreator(QStringLiteral("Kelvo"));
    QPainter pennello;
    if (!pennello.begin(&scrittore)) {
        guasto("il documento non si compone");
    }
    bool primo = true;
    for (const auto& foglio : fogli.fogli) {
        if (!primo) {
            scrittore.newPage();
        }
        primo = false;
        pennello.save();
        pennello.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing | QPainter::SmoothPixmapTransform |
                                QPainter::LosslessImageRendering);
        pennello.scale(scrittore.width() / larghezzaFoglio, scrittore.height() / altezzaFoglio);
        foglio(pennello);
        pennello.restore();
    }
    pennello.end();
    return byte;
}

/// Times of the day on which the file is made give way to one that is always the same, letter for letter.
void fermaTempi(QByteArray& pdf) {
    const auto ferma = [&pdf](const char* forma, const char* fisso) {
        const QRegularExpression tempo(QString::fromLatin1(forma));
        const QString testo = QString::fromLatin1(pdf);
        for (auto trovati = tempo.globalMatch(testo); trovati.hasNext();) {
            const auto trovato = trovati.next();
            const QByteArray nuovo = QByteArray(fisso).left(trovato.capturedLength(1));
            pdf.replace(trovato.capturedStart(1), nuovo.size(), nuovo);
        }
    };
    ferma(R"(/CreationDate \(D:(\d{14}))", "20260101000000");
    ferma(R"(/CreationDate \(D:\d{14}([-+]\d\d'\d\d))", "+00'00");
    ferma(R"((\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d))", "2026-01-01T00:00:00");
    ferma(R"(2026-01-01T00:00:00([-+]\d\d:\d\d))", "+00:00");
}

/// A text as a string of the format: UTF-16 in hexadecimal digits.
QByteArray stringa(const QString& testo) {
    QByteArray byte("\xfe\xff");
    for (const QChar c : testo) {
        byte += static_cast<char>(c.unicode() >> 8U);
        byte += static_cast<char>(c.unicode() & 0xffU);
    }
    return '<' + byte.toHex() + '>';
}

QByteArray riferimento(int oggetto) {
    return QByteArray::number(oggetto) + " 0 R";
}

/// Appends to a finished file what its writer does not know: language, author and subject, the list of chapters.
class Aggiunta {
public:
    explicit Aggiunta(QByteArray& pdf) : pdf_(pdf) {}

    void scrivi(const Fogli& fogli, const Proprieta& proprieta) {
        const QString coda = QString::fromLatin1(pdf_.right(2048));
        radice_ = numero(coda, QStringLiteral(R"(/Root (\d+) 0 R)"));
        prossimo_ = numero(coda, QStringLiteral(R"(/Size (\d+))"));
        prima_ = numero(coda, QStringLiteral(R"(startxref\s+(\d+))"));
        const int info = numero(coda, QStringLiteral(R"(/Info (\d+) 0 R)"));
        QByteArray catalogo = contenuto(radice_);
        const QList<int> pagine = paginePrime(catalogo);
        collega(fogli, pagine);
        const int lista = segnalibri(fogli, pagine);
        catalogo.insert(catalogo.lastIndexOf(">>"), "/Lang " + stringa(proprieta.lingua) + "\n/Outlines " +
                                                        riferimento(lista) + "\n/PageMode /UseOutlines\n");
        oggetto(radice_, catalogo);
        QByteArray notizie = contenuto(info);
        notizie.insert(notizie.lastIndexOf(">>"),
                       "/Author " + stringa(proprieta.autore) + "\n/Subject " + stringa(proprieta.argomento) + "\n");
        oggetto(info, notizie);
        chiudi(info);
    }

private:
    static int numero(const QString& testo, const QString& forma) {
        const auto trovato = QRegularExpression(forma).match(testo);
        if (!trovato.hasMatch()) {
            guasto("il documento non ha la forma attesa");
        }
        return trovato.captured(1).toInt();
    }

    /// What stands between "obj" and "endobj" of an object.
    QByteArray contenuto(int oggetto) const {
        const QByteArray inizio = "\n" + QByteArray::number(oggetto) + " 0 obj";
        const qsizetype da = pdf_.indexOf(inizio);
        const qsizetype a = pdf_.indexOf("endobj", da);
        if (da < 0 || a < 0) {
            guasto("il documento non ha la forma attesa");
        }
        return pdf_.mid(da + inizio.size(), a - da - inizio.size()).trimmed() + '\n';
    }

    QList<int> paginePrime(const QByteArray& catalogo) const {
        const int albero = numero(QString::fromLatin1(catalogo), QStringLiteral(R"(/Pages (\d+) 0 R)"));
        const QString figlie =
            QString::fromLatin1(contenuto(albero)).section(QStringLiteral("/Kids"), 1).section(QLatin1Char(']'), 0, 0);
        static const QRegularExpression una(QStringLiteral(R"((\d+) 0 R)"));
        QList<int> pagine;
        for (auto trovate = una.globalMatch(figlie); trovate.hasNext();) {
            pagine << trovate.next().captured(1).toInt();
        }
        return pagine;
    }

    /// Links to anchors, which the writer takes for addresses, lead to their places on the pages.
    void collega(const Fogli& fogli, const QList<int>& pagine) {
        QMap<QByteArray, QByteArray> mete;
        for (const Fogli::Ancora& ancora : fogli.ancore) {
            constexpr double sopra = 6.0;
            const double y = (altezzaFoglio - ancora.y) / punto + sopra;
            mete[ancora.nome.toUtf8()] = "/Dest [" + riferimento(pagine.at(ancora.foglio)) + " /XYZ null " +
                                         QByteArray::number(y, 'f', 1) + " null]\n";
        }
        const QByteArray azione("/A <<\n/Type /Action\n/S /URI\n/URI (#");
        QMap<int, QByteArray> nuovi;
        for (qsizetype qui = pdf_.indexOf(azione); qui >= 0; qui = pdf_.indexOf(azione, qui + 1)) {
            const qsizetype nome = qui + azione.size();
            const QByteArray ancora = pdf_.mid(nome, pdf_.indexOf(')', nome) - nome);
            const qsizetype inizio = pdf_.lastIndexOf(" 0 obj", qui);
            const qsizetype riga = pdf_.lastIndexOf('\n', inizio) + 1;
            if (!mete.contains(ancora)) {
                guasto("un legame non porta a nulla");
            }
            nuovi[pdf_.mid(riga, inizio - riga).toInt()] =
                pdf_.mid(inizio + 7, qui - inizio - 7) + mete.value(ancora) + ">>\n";
        }
        for (auto uno = nuovi.cbegin(); uno != nuovi.cend(); ++uno) {
            oggetto(uno.key(), uno.value());
        }
    }

    /// The list of chapters with their sections; answers its object.
    int segnalibri(const Fogli& fogli, const QList<int>& pagine) {
        const int lista = prossimo_++;
        const auto n = fogli.segnalibri.size();
        const int primo = prossimo_;
        prossimo_ += static_cast<int>(n);
        const auto oggettoDi = [primo](std::size_t i) { return primo + static_cast<int>(i); };
        QList<std::size_t> capitoli;
        QMap<std::size_t, QList<std::size_t>> sezioni;
        for (std::size_t i = 0; i < n; ++i) {
            if (fogli.segnalibri[i].livello == 1 || capitoli.isEmpty()) {
                capitoli << i;
            } else {
                sezioni[capitoli.back()] << i;
            }
        }
        const auto scriviFila = [&](const QList<std::size_t>& fila, int padre) {
            for (qsizetype k = 0; k < fila.size(); ++k) {
                const auto& voce = fogli.segnalibri[fila[k]];
                QByteArray testo = "<<\n/Title " + stringa(voce.testo) + "\n/Parent " + riferimento(padre) +
                                   "\n/Dest [" + riferimento(pagine.at(voce.foglio)) + " /Fit]\n";
                testo += k > 0 ? "/Prev " + riferimento(oggettoDi(fila[k - 1])) + "\n" : QByteArray{};
                testo += k + 1 < fila.size() ? "/Next " + riferimento(oggettoDi(fila[k + 1])) + "\n" : QByteArray{};
                if (const QList<std::size_t> sue = sezioni.value(fila[k]); !sue.isEmpty()) {
                    testo += "/First " + riferimento(oggettoDi(sue.front())) + "\n/Last " +
                             riferimento(oggettoDi(sue.back())) + "\n/Count " + QByteArray::number(-sue.size()) + "\n";
                }
                oggetto(oggettoDi(fila[k]), testo + ">>\n");
            }
        };
        scriviFila(capitoli, lista);
        for (auto uno = sezioni.cbegin(); uno != sezioni.cend(); ++uno) {
            scriviFila(uno.value(), oggettoDi(uno.key()));
        }
        QByteArray testo = "<<\n/Type /Outlines\n";
        if (!capitoli.isEmpty()) {
            testo += "/First " + riferimento(oggettoDi(capitoli.front())) + "\n/Last " +
                     riferimento(oggettoDi(capitoli.back())) + "\n/Count " + QByteArray::number(capitoli.size()) + "\n";
        }
        oggetto(lista, testo + ">>\n");
        return lista;
    }

    void oggetto(int numero, const QByteArray& testo) {
        dove_[numero] = pdf_.size();
        pdf_ += QByteArray::number(numero) + " 0 obj\n" + testo + "endobj\n";
    }

    void chiudi(int info) {
        const qsizetype tavola = pdf_.size();
        pdf_ += "xref\n";
        for (auto uno = dove_.cbegin(); uno != dove_.cend(); ++uno) {
            pdf_ += QByteArray::number(uno.key()) + " 1\n" + QByteArray::number(uno.value()).rightJustified(10, '0') +
                    " 00000 n \n";
        }
        pdf_ += "trailer\n<<\n/Size " + QByteArray::number(prossimo_) + "\n/Root " + riferimento(radice_) + "\n/Info " +
                riferimento(info) + "\n/Prev " + QByteArray::number(prima_) + "\n>>\nstartxref\n" +
                QByteArray::number(tavola) + "\n%%EOF\n";
    }

    QByteArray& pdf_;
    QMap<int, qsizetype> dove_;
    int radice_ = 0;
    int prossimo_ = 0;
    int prima_ = 0;
};

}  // namespace

QByteArray pdfDi(const Fogli& fogli, const Proprieta& proprieta) {
    QByteArray pdf = dipinto(fogli, proprieta);
    fermaTempi(pdf);
    if (!pdf.endsWith('\n')) {
        pdf += '\n';
    }
    Aggiunta(pdf).scrivi(fogli, proprieta);
    return pdf;
}

}  // namespace kelvo::guida

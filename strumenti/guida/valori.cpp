#include "guida/valori.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <stdexcept>
#include <utility>

#include "base/guasto.h"
#include "base/numeri.h"

namespace kelvo::guida {

namespace {

constexpr int rigaMassima = 100;
constexpr int rientroAiuto = 28;

[[noreturn]] void guasto(const QString& testo) {
    throw std::runtime_error(testo.toStdString());
}

QString mostrato(double valore, const QString& formato) {
    const auto con = [valore](Formato quale) { return QString::fromStdString(formatta(valore, quale)); };
    if (formato == QStringLiteral("0")) {
        return con("#0");
    }
    if (formato == QStringLiteral("0.0")) {
        return con("#0.0");
    }
    if (formato == QStringLiteral("0.00")) {
        return con("#0.00");
    }
    if (formato == QStringLiteral("0.000")) {
        return con("#0.000");
    }
    if (formato == QStringLiteral("0.0000")) {
        return con("#0.0000");
    }
    if (formato == QStringLiteral("0.00%")) {
        return con("#0.00%");
    }
    guasto(QStringLiteral("formato sconosciuto '%1'").arg(formato));
}

/// A line that is too long goes on below the column of the descriptions.
QString piegata(const QString& riga) {
    if (riga.size() <= rigaMassima || riga.contains(QStringLiteral("  |"))) {
        return riga;
    }
    const qsizetype taglio = riga.lastIndexOf(QLatin1Char(' '), rigaMassima);
    if (taglio <= rientroAiuto) {
        return riga;
    }
    const bool voce = riga.startsWith(QStringLiteral("  "));
    const QString resto = QString(voce ? rientroAiuto : 0, QLatin1Char(' ')) + riga.mid(taglio + 1);
    return riga.left(taglio) + QLatin1Char('\n') + piegata(resto);
}

}  // namespace

Valori::Valori(QString cli, QString progetti, const QString& versione)
    : cli_(std::move(cli)), progetti_(std::move(progetti)), versione_(versione) {}

void Valori::leggi(const QString& percorso) {
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly)) {
        guasto(percorso + QStringLiteral(": il file non si apre"));
    }
    for (const QString& riga : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'))) {
        if (riga.trimmed().isEmpty() || riga.startsWith(QLatin1Char('#'))) {
            continue;
        }
        const QStringList parti = riga.section(QLatin1Char('='), 1).split(QLatin1Char(';'));
        if (parti.size() != 3) {
            guasto(QStringLiteral("valore illeggibile: %1").arg(riga));
        }
        voci_[riga.section(QLatin1Char('='), 0, 0).trimmed()] = {parti[0].trimmed(), parti[1].trimmed(),
                                                                 parti[2].trimmed(), false};
    }
}

QString Valori::testo(const QString& nome) {
    if (nome == QStringLiteral("versione")) {
        return versione_;
    }
    const auto trovata = voci_.find(nome);
    if (trovata == voci_.end()) {
        guasto(QStringLiteral("il segnaposto {{%1}} non ha valore").arg(nome));
    }
    trovata->usata = true;
    const Voce voce = *trovata;
    if (voce.formato == QStringLiteral("testo")) {
        return valore(nome, voce).toString();
    }
    return mostrato(numero(nome), voce.formato);
}

double Valori::numero(const QString& nome) {
    if (!voci_.contains(nome)) {
        guasto(QStringLiteral("il valore '%1' non c'è").arg(nome));
    }
    const Voce voce = voci_.value(nome);
    if (voce.comando == QStringLiteral("calc")) {
        return calcola(voce.percorso);
    }
    const QJsonValue trovato = valore(nome, voce);
    if (!trovato.isDouble()) {
        guasto(QStringLiteral("il valore '%1' non è un numero").arg(nome));
    }
    return trovato.toDouble();
}

QJsonValue Valori::valore(const QString& nome, const Voce& voce) {
    QStringList parole = voce.comando.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    parole.insert(1, QStringLiteral("--json"));
    QJsonValue qui = QJsonDocument::fromJson(esegui(parole)).object();
    for (const QString& passo : voce.percorso.split(QLatin1Char('/'))) {
        qui = qui.isArray() ? qui.toArray().at(passo.toInt()) : qui.toObject().value(passo);
    }
    if (qui.isUndefined() || qui.isNull()) {
        guasto(QStringLiteral("il valore '%1' non si trova in %2").arg(nome, voce.percorso));
    }
    return qui;
}

double Valori::calcola(const QString& catena) {
    QList<double> pila;
    for (const QString& parola : catena.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        bool cifra = false;
        const double letto = parola.toDouble(&cifra);
        if (cifra) {
            pila << letto;
        } else if (parola.size() == 1 && pila.size() >= 2) {
            const double b = pila.takeLast();
            const double a = pila.takeLast();
            const QChar segno = parola[0];
            pila << (segno == QLatin1Char('+')   ? a + b
                     : segno == QLatin1Char('-') ? a - b
                     : segno == QLatin1Char('*') ? a * b
                                                 : dividi(a, b));
        } else {
            pila << numero(parola);
        }
    }
    if (pila.size() != 1) {
        guasto(QStringLiteral("conto illeggibile: %1").arg(catena));
    }
    return pila.front();
}

QByteArray Valori::esegui(const QStringList& parole) {
    QStringList comando;
    for (const QString& parola : parole) {
        comando << (parola.startsWith(QStringLiteral("Rotatoria_")) && !parola.endsWith(QStringLiteral(".klv"))
                        ? progetti_ + QLatin1Char('/') + parola + QStringLiteral(".klv")
                        : parola);
    }
    const QString chiave = comando.join(QLatin1Char('\n'));
    if (!uscite_.contains(chiave)) {
        QProcess programma;
        programma.start(cli_, comando, QIODevice::ReadOnly);
        constexpr int attesa = 60000;
        if (!programma.waitForFinished(attesa) || programma.exitStatus() != QProcess::NormalExit ||
            (programma.exitCode() != 0 && programma.exitCode() != 3)) {
            guasto(QStringLiteral("kelvo-cli %1: non riuscito\n%2")
                       .arg(comando.join(QLatin1Char(' ')), QString::fromUtf8(programma.readAllStandardError())));
        }
        uscite_[chiave] = programma.readAllStandardOutput();
    }
    return uscite_.value(chiave);
}

QString Valori::uscita(const QString& comando) {
    static const QRegularExpression tratto(QStringLiteral(R"(^(\d+)-(\d+)$)"));
    static const QRegularExpression ora(QStringLiteral(R"(\d\d/\d\d/\d{4} \d\d:\d\d:\d\d)"));
    static const QRegularExpression coda(QStringLiteral(R"(\s+$)"));
    QStringList parole = comando.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    qsizetype da = 0;
    qsizetype quante = -1;
    if (const auto trovato = tratto.match(parole.back()); trovato.hasMatch()) {
        da = trovato.captured(1).toInt() - 1;
        quante = trovato.captured(2).toInt() - da;
        parole.removeLast();
    }
    QStringList righe;
    for (QString riga : QString::fromUtf8(esegui(parole)).split(QLatin1Char('\n')).mid(da, quante)) {
        riga.remove(QLatin1Char('\t')).remove(coda).replace(ora, QStringLiteral("gg/mm/aaaa hh:mm:ss"));
        righe << (parole.contains(QStringLiteral("--help")) ? piegata(riga) : riga);
    }
    while (!righe.isEmpty() && righe.back().isEmpty()) {
        righe.removeLast();
    }
    return righe.join(QLatin1Char('\n'));
}

QStringList Valori::inutili() const {
    QStringList nomi;
    for (auto uno = voci_.cbegin(); uno != voci_.cend(); ++uno) {
        bool altrove = uno->usata;
        for (const Voce& altra : voci_) {
            altrove = altrove || (altra.comando == QStringLiteral("calc") &&
                                  altra.percorso.split(QLatin1Char(' ')).contains(uno.key()));
        }
        if (!altrove) {
            nomi << uno.key();
        }
    }
    nomi.sort();
    return nomi;
}

}  // namespace kelvo::guida

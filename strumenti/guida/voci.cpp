#include "guida/voci.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QLocale>
#include <array>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

#include "model/Rotonda.h"
#include "model/campiKlv.h"
#include "results/nomiDati.h"
#include "results/tipiProgetto.h"

namespace kelvo::guida {

namespace {

QString q(std::string_view testo) {
    return QString::fromUtf8(testo.data(), static_cast<qsizetype>(testo.size()));
}

QString lettere(const QString& testo) {
    return QLatin1Char('`') + testo + QLatin1Char('`');
}

/// What a property takes that is missing, where this is no value but hangs on other properties.
struct ValoreDetto {
    std::string_view voce;
    const char* parole;
};
constexpr std::array valoriDetti{
    ValoreDetto{"Data", "oggi"},
    ValoreDetto{klv::chiaveNumeroRami, "quanti sono i rami"},
    ValoreDetto{klv::chiaveSegmenti, "quelli dei tempi"},
    ValoreDetto{"Tempo1", "tempo iniziale"},
    ValoreDetto{"Tempo2", "metà del periodo"},
    ValoreDetto{"Tempo3", "tempo finale"},
    ValoreDetto{"Descrizione", "«Ramo» e la lettera"},
};

/// A project of which the file says nothing that it need not say.
QJsonObject progettoMinimo() {
    constexpr const char* testo = R"({"formato": "Kelvo", "versione": 1, "Rami": [{}, {}, {}]})";
    Rotonda rotonda;
    std::string messaggio;
    bool letto = false;
    rotonda.LoadTesto(testo, messaggio, letto);
    if (!letto) {
        throw std::runtime_error("voci del progetto: " + messaggio);
    }
    return QJsonDocument::fromJson(QByteArray::fromStdString(rotonda.TestoFile())).object();
}

QString tipo(klv::Forma forma) {
    switch (forma) {
        case klv::Forma::testo:
            return QStringLiteral("testo");
        case klv::Forma::logico:
            return QStringLiteral("vero o falso");
        case klv::Forma::intero:
            return QStringLiteral("intero");
        case klv::Forma::singolo:
        case klv::Forma::doppio:
            return QStringLiteral("numero");
        case klv::Forma::ora:
            return QStringLiteral("ora");
        case klv::Forma::giorno:
            return QStringLiteral("giorno");
    }
    return {};
}

template <class O, class V, klv::Forma F>
klv::Forma formaDi(const klv::Accesso<O, V, F>& /*accesso*/) {
    return F;
}

QString valore(std::string_view voce, const QJsonValue& scritto) {
    for (const ValoreDetto& detto : valoriDetti) {
        if (detto.voce == voce) {
            return QString::fromUtf8(detto.parole);
        }
    }
    if (scritto.isBool()) {
        return lettere(scritto.toBool() ? QStringLiteral("true") : QStringLiteral("false"));
    }
    if (scritto.isString()) {
        return lettere(QLatin1Char('"') + scritto.toString() + QLatin1Char('"'));
    }
    // With the point that the file has, and not the comma of the program.
    return lettere(QString::number(scritto.toDouble(), 'g', QLocale::FloatingPointShortest));
}

/// The name of a property and, of a choice, what its numbers stand for.
QString significato(const NomeDato& dato) {
    QString testo = q(dato.nome);
    if (dato.parole == nullptr) {
        return testo;
    }
    for (std::int16_t i = 0; dato.parole(i) != paroleNonPrevisto(i); ++i) {
        testo += QStringLiteral("%1%2 %3")
                     .arg(i == 0 ? QStringLiteral(": ") : QStringLiteral(", "))
                     .arg(i)
                     .arg(QString::fromStdString(dato.parole(i)));
    }
    return testo;
}

template <class O, std::size_t N>
Tabella vociDi(const std::array<klv::Campo<O>, N>& campi, const std::array<NomeDato, N>& nomi,
               const QJsonObject& scritto) {
    Tabella tavola{
        {Qt::AlignLeft, Qt::AlignLeft, Qt::AlignLeft, Qt::AlignLeft},
        {QStringLiteral("Voce"), QStringLiteral("Tipo"), QStringLiteral("Se manca"), QStringLiteral("Significato")},
        {}};
    for (std::size_t i = 0; i < N; ++i) {
        const klv::Forma forma = std::visit([](const auto& accesso) { return formaDi(accesso); }, campi.at(i).accesso);
        const QString nome = q(campi.at(i).nome);
        tavola.righe << QStringList{
            lettere(nome), tipo(forma), valore(campi.at(i).nome, scritto.value(nome)),
            nomi.at(i).nome.empty() ? QStringLiteral("Come nella domanda") : significato(nomi.at(i))};
    }
    return tavola;
}

}  // namespace

std::optional<Tabella> tavolaVoci(const QString& oggetto) {
    const QJsonObject progetto = progettoMinimo();
    const QJsonObject ramo = progetto.value(q(klv::chiaveRami)).toArray().first().toObject();
    const auto parte = [&](std::string_view chiave) { return ramo.value(q(chiave)).toObject(); };
    if (oggetto == QStringLiteral("progetto")) {
        return vociDi(klv::rotonda::campi, nomiProgetto, progetto);
    }
    if (oggetto == QStringLiteral("ramo")) {
        return vociDi(klv::ramo::campi, nomiRamo, ramo);
    }
    if (oggetto == QStringLiteral("traffico")) {
        return vociDi(klv::traffico::campi, nomiTraffico, parte(klv::chiaveTraffico));
    }
    if (oggetto == QStringLiteral("composizione")) {
        return vociDi(klv::composizione::campi, nomiComposizione, parte(klv::chiaveComposizione));
    }
    if (oggetto == QStringLiteral("analisi")) {
        return vociDi(klv::analisi::campi, nomiAnalisi, parte(klv::chiaveAnalisi));
    }
    return std::nullopt;
}

}  // namespace kelvo::guida

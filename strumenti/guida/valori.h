#pragma once

#include <QtCore/QHash>
#include <QtCore/QJsonValue>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace kelvo::guida {

/// Figures of the example projects, worked out by kelvo-cli while the document is made.
///
/// A file names them, one a line: "name = pattern ; command ; path", where the command is one of kelvo-cli with the
/// name of an example, and the path leads into its JSON ("rami/0/iterazioni/4/Ritardo"). With the command "calc" the
/// path is arithmetic of names and numbers behind one another: "capacita 60 /". Patterns: 0, 0.0, 0.00, 0.000, 0.0000,
/// 0.00%, testo. Lines that begin with # are remarks.
class Valori {
public:
    /// `cli`: the program; `progetti`: folder of the examples; `versione` is the value of that name.
    Valori(QString cli, QString progetti, const QString& versione);

    void leggi(const QString& percorso);
    /// A value as the text shows it. Raises std::runtime_error for an unknown name and for one that leads nowhere.
    QString testo(const QString& nome);
    /// What kelvo-cli prints for a command; "3-9" at its end takes those lines alone. Blanks at line ends, tabs and the
    /// time of the day go, long lines of help are folded.
    QString uscita(const QString& comando);
    /// Names that no text has asked for.
    QStringList inutili() const;

private:
    struct Voce {
        QString formato;
        QString comando;
        QString percorso;
        bool usata = false;
    };
    double numero(const QString& nome);
    QJsonValue valore(const QString& nome, const Voce& voce);
    double calcola(const QString& catena);
    QByteArray esegui(const QStringList& parole);

    QString cli_;
    QString progetti_;
    QHash<QString, Voce> voci_;
    QHash<QString, QByteArray> uscite_;
    QString versione_;
};

}  // namespace kelvo::guida

#include "ui/VistaPagina.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QUrl>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QTextBrowser>

#include "shell/servizi/pagineAiuto.h"
#include "ui/legame.h"
#include "ui/legami.h"
#include "ui/stile.h"

namespace kelvo::ui {

namespace {

QString& radice() {
    static QString cartella;
    return cartella;
}

QString famiglie(const QFont& carattere) {
    return carattere.families().join(QStringLiteral("','"));
}

QString foglioPagine() {
    QString foglio = QStringLiteral(
        "body { font-family: '{dati}'; font-size: {corpo}pt; color: {inchiostro}; }"
        "p { margin: 2px 0 0 0; }"
        "p.nome { font-family: '{forte}'; margin: 0; }"
        "p.titolo { font-family: '{leggero}'; font-size: {titolo}pt; color: {blu}; margin: 0 0 8px 0; }"
        "p.capo { font-family: '{forte}'; font-size: {gruppo}pt; color: {blu}; margin: 12px 0 2px 0; }"
        "p.nota, span.limiti, td.nota { font-size: {nota}pt; color: {secondario}; }"
        "span.voce { font-family: '{forte}'; color: {blu}; }"
        "p.vedi { font-size: {nota}pt; margin: 8px 0 0 0; }"
        "ul { margin: 2px 0 2px 0; }"
        "a { color: {principale}; }"
        "table.dati th { background-color: {verde}; color: white; font-family: '{forte}'; }"
        "table.dati td { background-color: {barra}; }");
    const auto metti = [&foglio](const char* nome, const QString& valore) {
        foglio.replace(QLatin1String(nome), valore);
    };
    metti("{dati}", famiglie(dati(punti::corpo)));
    metti("{forte}", famiglie(forte(punti::corpo)));
    metti("{leggero}", famiglie(leggero(punti::corpo)));
    metti("{corpo}", QString::number(punti::corpo));
    metti("{titolo}", QString::number(punti::titolo));
    metti("{gruppo}", QString::number(punti::gruppo));
    metti("{nota}", QString::number(punti::nota));
    metti("{inchiostro}", qcolore(tinta::inchiostro).name());
    metti("{blu}", qcolore(tinta::titolo).name());
    metti("{secondario}", qcolore(tinta::secondario).name());
    metti("{principale}", qcolore(tinta::principale).name());
    metti("{verde}", qcolore(tinta::verde).name());
    metti("{barra}", qcolore(tinta::barra).name());
    return foglio;
}

}  // namespace

void cartellaAiuto(const std::string& cartella) {
    radice() = q(cartella);
}

QString testoPagina(const QString& pagina) {
    const QDir dove(radice());
    for (const QString& nome : dove.entryList({QStringLiteral("*.htm")}, QDir::Files)) {
        QFile file(dove.filePath(nome));
        if (nome.compare(pagina, Qt::CaseInsensitive) == 0 && file.open(QIODevice::ReadOnly)) {
            return QString::fromUtf8(file.readAll());
        }
    }
    return pagina.isEmpty() ? QString{} : q(paginaMancante(s(pagina)));
}

void vestiPagina(QTextDocument& documento) {
    documento.setDocumentMargin(0.0);
    documento.setDefaultStyleSheet(foglioPagine());
}

std::string meta(const QUrl& collegamento) {
    return s(collegamento.isRelative() ? collegamento.path(QUrl::FullyDecoded)
                                       : collegamento.toString(QUrl::FullyEncoded));
}

QTextBrowser* collega(VisorePagina& pagina, QWidget* genitore) {
    auto* vista = new QTextBrowser(genitore);
    vista->setOpenLinks(false);
    vista->setFrameShape(QFrame::NoFrame);
    vista->setFont(dati(punti::corpo));
    vestiPagina(*vista->document());
    auto* legame = new Legame(pagina, *vista);
    legame->mostra([&pagina, vista] {
        vista->setHtml(q(pagina.html()));
        vista->verticalScrollBar()->setValue(0);
    });
    QObject::connect(vista, &QTextBrowser::anchorClicked, legame,
                     [&pagina](const QUrl& collegamento) { pagina.segui(meta(collegamento)); });
    return vista;
}

}  // namespace kelvo::ui

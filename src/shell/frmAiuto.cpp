#include "shell/frmAiuto.h"

#include "base/file.h"
#include "shell/servizi/pagineAiuto.h"

namespace kelvo {

namespace {

constexpr const char* cartellaPagine = "\\Support\\";
constexpr const char* cartellaGuide = "\\UserGuide\\";
constexpr const char* guida = "UserGuide.pdf";
/// Links to what stands beside the pages and is opened by the system.
constexpr std::string_view versoGuide = "../UserGuide/";

/// A page has a plain file name: no link leads out of the folder.
bool nomePiano(const std::string& nome) {
    return !nome.empty() && nome.find_first_of("/\\:") == std::string::npos;
}

/// The address without what stands behind its "#".
std::string senzaAncora(const std::string& collegamento) {
    return collegamento.substr(0, collegamento.find('#'));
}

}  // namespace

frmAiuto::frmAiuto(const Contorno& contorno, ApriDocumenti& documenti)
    : Finestra(contorno, "frmAiuto", "Aiuto"), documenti_(documenti) {
    ordina({&ctlPagina, &lblAvviso, &cmdIndietro, &cmdAvanti, &cmdIndice, &cmdGuida, &cmdChiudi});
    ctlPagina.alCollegamento = [this](const std::string& collegamento) { segui(collegamento); };
    cmdIndietro.allaPressione = [this] { vai(-1); };
    cmdAvanti.allaPressione = [this] { vai(1); };
    cmdIndice.allaPressione = [this] { mostra(std::string{paginaIndice}); };
    cmdGuida.allaPressione = [this] { apriGuida(guida); };
    cmdChiudi.allaPressione = [this] {
        if (allaChiusura) {
            allaChiusura();
        }
    };
    mostra(std::string{paginaIndice});
}

void frmAiuto::mostra(const std::string& pagina) {
    if (lette_.empty() || lette_[posto_] != pagina) {
        if (!lette_.empty()) {
            lette_.resize(posto_ + 1);
        }
        lette_.push_back(pagina);
        posto_ = lette_.size() - 1;
    }
    mostraCorrente();
}

void frmAiuto::mostraCorrente() {
    const std::string& nome = pagina();
    std::string testo;
    std::string motivo = "non è una pagina dell'aiuto";
    if (nomePiano(nome)) {
        const std::string percorso = app().theAmbiente.PercorsoProgramma(cartellaPagine + nome);
        motivo = leggiFile(percorso, massimoPagina, testo);
    }
    if (!motivo.empty()) {
        testo = paginaMancante(nome, motivo);
    }
    avvisa({});
    ctlPagina.html(testo);
    sottotitolo.testo(titoloPagina(testo));
    cmdIndietro.abilitato(posto_ > 0);
    cmdAvanti.abilitato(posto_ + 1 < lette_.size());
}

void frmAiuto::segui(const std::string& collegamento) {
    if (collegamento.rfind("https://", 0) == 0 || collegamento.rfind("http://", 0) == 0) {
        apri(collegamento);
    } else if (collegamento.rfind(versoGuide, 0) == 0) {
        apriGuida(collegamento.substr(versoGuide.size()));
    } else if (const std::string nome = senzaAncora(collegamento); !nome.empty()) {
        mostra(nome);
    }
}

void frmAiuto::vai(int passi) {
    posto_ = passi < 0 ? posto_ - 1 : posto_ + 1;
    mostraCorrente();
}

void frmAiuto::apriGuida(const std::string& nome) {
    if (nomePiano(nome)) {
        apri(app().theAmbiente.PercorsoProgramma(cartellaGuide + nome));
    } else {
        mostra(nome);  // which says that there is no such page
    }
}

void frmAiuto::apri(const std::string& cosa) {
    avvisa(documenti_.apri(cosa) ? "" : "Impossibile aprire " + cosa);
}

void frmAiuto::avvisa(const std::string& testo) {
    lblAvviso.testo(testo);
    lblAvviso.visibile(!testo.empty());
}

}  // namespace kelvo

#include "checkup/stampaControllo.h"

#include <fmt/format.h>

#include "checkup/checkList.h"

namespace kelvo {

namespace {

using D = DocumentoPagine;

constexpr double pesoDomanda = 12.0;

D::Segno segno(Livello livello) {
    switch (livello) {
        case Livello::Green:
            return D::Segno::informazione;
        case Livello::Yellow:
            return D::Segno::verifica;
        case Livello::Red:
            break;
    }
    return D::Segno::errore;
}

/// The table of the questions from a row on; empty where none follows before the next section.
D::Tabella tabellaDomande(std::size_t riga, const RisposteCheckList& risposte) {
    D::Tabella tabella{.colonne = {{"Domanda", pesoDomanda, AllineamentoCella::sinistra},
                                   {"SI", 1.0, AllineamentoCella::centro},
                                   {"NO", 1.0, AllineamentoCella::centro}},
                       .righe = {}};
    for (; riga < righeCheckList.size() && righeCheckList[riga].genere != GenereRiga::DESCRIZIONE; ++riga) {
        if (righeCheckList[riga].genere != GenereRiga::BIANCO) {
            continue;
        }
        const auto data = risposte.find(static_cast<int>(riga));
        const bool risposta = data != risposte.end();
        tabella.righe.push_back({{.testo = std::string{righeCheckList[riga].testo}},
                                 {.testo = {}, .casella = risposta && data->second},
                                 {.testo = {}, .casella = risposta && !data->second}});
    }
    return tabella;
}

int indiceDi(const RisposteCheckList& risposte) {
    int somma = 0;
    for (const auto& [riga, si] : risposte) {
        const RigaCheckList& voce = righeCheckList.at(static_cast<std::size_t>(riga));
        somma += si ? voce.si : voce.no;
    }
    return somma;
}

void aggiungiLivello(D& documento, const RisposteCheckList& risposte) {
    const int indice = indiceDi(risposte);
    documento.blocchi.emplace_back(D::Titolo{"Livello del progetto", 2});
    documento.blocchi.emplace_back(D::Paragrafo{testoIndice(static_cast<int>(risposte.size()), indice)});
    if (static_cast<int>(risposte.size()) < numeroDomande()) {
        documento.blocchi.emplace_back(D::Paragrafo{.testo = std::string{testoCopertina}, .quieto = true});
        return;
    }
    const int fascia = fasciaDiIndice(indice);
    if (fascia < 0) {
        documento.blocchi.emplace_back(D::Paragrafo{testoSenzaLivello(indice)});
        return;
    }
    const FasciaIndice& sua = fasceIndice.at(static_cast<std::size_t>(fascia));
    documento.blocchi.emplace_back(
        D::Paragrafo{.testo = std::string{sua.commento}, .inizio = fmt::format("LIVELLO {}: ", sua.nome)});
}

}  // namespace

DocumentoPagine documentoReport(DocumentoPagine documento, const AlberoRiscontri& elenco, const std::string& avviso) {
    documento.blocchi.emplace_back(D::Titolo{elenco.radice, 2});
    if (!avviso.empty()) {
        documento.blocchi.emplace_back(D::Paragrafo{.testo = avviso, .quieto = true});
    }
    if (elenco.riscontri.empty()) {
        documento.blocchi.emplace_back(D::Paragrafo{std::string{testoNessunRiscontro}});
    }
    for (const Riscontro& riscontro : elenco.riscontri) {
        documento.blocchi.emplace_back(D::Paragrafo{.testo = std::string{messaggioRiscontro(riscontro.testo)},
                                                    .inizio = std::string{titoloRiscontro(riscontro.testo)},
                                                    .segno = segno(riscontro.livello)});
    }
    documento.blocchi.emplace_back(D::Titolo{"Legenda", 2});
    for (const auto& [livello, parole] :
         {std::pair{Livello::Red, "Messaggio di Errore"}, std::pair{Livello::Yellow, "Messaggio di Verifica"},
          std::pair{Livello::Green, "Messaggio di Informazione"}}) {
        documento.blocchi.emplace_back(D::Paragrafo{.testo = parole, .segno = segno(livello), .quieto = true});
    }
    return documento;
}

DocumentoPagine documentoCheckList(DocumentoPagine documento, const RisposteCheckList& risposte) {
    for (std::size_t r = 0; r + 1 < righeCheckList.size(); ++r) {
        if (righeCheckList[r].genere == GenereRiga::DESCRIZIONE) {
            documento.blocchi.emplace_back(D::Titolo{std::string{righeCheckList[r + 1].testo}, 2});
            documento.blocchi.emplace_back(D::Paragrafo{.testo = std::string{righeCheckList[r].testo}, .quieto = true});
            documento.blocchi.emplace_back(tabellaDomande(r + 1, risposte));
        }
    }
    aggiungiLivello(documento, risposte);
    return documento;
}

}  // namespace kelvo

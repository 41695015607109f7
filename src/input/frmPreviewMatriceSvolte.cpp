#include "input/frmPreviewMatriceSvolte.h"

#include "base/guasto.h"
#include "base/numeri.h"

namespace kelvo {

namespace {

constexpr Colore diagonale{221, 221, 221};

void intesta(Cella& cella, int ramo) {
    cella.testo = ramo == 0 ? std::string{} : std::string(1, static_cast<char>('A' + ramo - 1));
    cella.sfondo = colori::intestazione;
    cella.inchiostro = colori::bianco;
    cella.grassetto = true;
}

}  // namespace

Tabella tabellaMatrice(int rami) {
    Tabella tabella(rami + 1, rami + 1);
    for (int i = 0; i <= rami; ++i) {
        intesta(tabella.cella(0, i), i);
        intesta(tabella.cella(i, 0), i);
        if (i > 0) {
            tabella.cella(i, i).sfondo = diagonale;
        }
    }
    return tabella;
}

OrnamentoCella ornamentoMatrice(Posto cella) {
    OrnamentoCella ornato;
    if (cella == Posto{0, 0}) {
        ornato.segno = OrnamentoCella::Segno::freccia;
    }
    return ornato;
}

frmPreviewMatriceSvolte::frmPreviewMatriceSvolte(const Contorno& contorno)
    : AnteprimaProgetto(contorno, "frmPreviewMatriceSvolte", "Importa la matrice delle svolte",
                        "Selezionare un progetto per vederne la matrice."),
      frMatrice("frMatrice", "Matrice delle svolte", {}) {
    std::vector<Controllo*> controlli = datiProgetto();
    for (Controllo* c : std::initializer_list<Controllo*>{&frMatrice, &ctlGrid, &lblAvviso}) {
        controlli.push_back(c);
    }
    ordina(controlli);
    ctlGrid.ornamento = ornamentoMatrice;
    vuota(invito());
}

void frmPreviewMatriceSvolte::svuota() {
    ctlGrid.tabella({});
}

void frmPreviewMatriceSvolte::mostra(const Rotonda& altra) {
    const std::int16_t rami = altra.NumeroRami();
    Tabella tabella = tabellaMatrice(rami);
    for (std::int16_t i = 1; i <= rami; ++i) {
        for (std::int16_t j = 1; j <= rami; ++j) {
            tabella.cella(i, j).testo = testoNumero(altra.MatriceSvolte(i, j));
        }
    }
    ctlGrid.tabella(std::move(tabella));
}

bool frmPreviewMatriceSvolte::conferma(const std::string& percorso) {
    return altra(percorso) != nullptr;
}

std::int16_t frmPreviewMatriceSvolte::GetMatriceSvolte(std::int16_t riga, std::int16_t colonna) const {
    const Rotonda* progetto = altra();
    if (progetto == nullptr || riga < 1 || colonna < 1 || riga > progetto->NumeroRami() ||
        colonna > progetto->NumeroRami()) {
        return 0;
    }
    return aIntero16(arrotondaPari(progetto->MatriceSvolte(riga, colonna)));
}

}  // namespace kelvo

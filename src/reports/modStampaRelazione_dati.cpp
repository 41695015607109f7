#include <fmt/format.h>

#include <array>

#include "base/numeri.h"
#include "base/versione.h"
#include "reports/celle.h"
#include "reports/modStampaRelazione.h"
#include "reports/segnaposto.h"
#include "results/calcoloIpotesi.h"

namespace kelvo {

namespace {

constexpr Formato dueDecimali = "0.00";
constexpr Formato quattroDecimali = "0.0000";
constexpr std::int16_t matricePercento = 1;

std::string siNo(bool valore) {
    return valore ? "sì" : "no";
}

std::string_view nomeAnalisi(std::int16_t tipo) {
    switch (tipo) {
        case analisi::saturazione:
            return "sola saturazione";
        case analisi::curva:
            return "curva tempo/flusso di ogni ingresso";
        case analisi::tabella:
            return "tabella dei flussi per segmento di tempo";
        default:
            return "non definita";
    }
}

using Testi = std::vector<std::vector<std::string>>;

/// The cells of a matrix of the project; its diagonal stays blank.
Testi testiMatrice(const Matrice& matrice, Formato formato) {
    Testi testi(matrice.size(), std::vector<std::string>(matrice.size()));
    for (std::size_t r = 0; r < matrice.size(); ++r) {
        for (std::size_t c = 0; c < matrice.size(); ++c) {
            testi[r][c] = r == c ? std::string{} : formatta(matrice[r][c], formato);
        }
    }
    return testi;
}

/// The matrix in vehicles: as it was entered, or the shares of what enters at each leg.
Matrice matriceVeicoli(const Rotonda& rotonda) {
    Matrice matrice;
    if (rotonda.TipoMatriceSvolte() != matricePercento) {
        rotonda.GetMatriceSvolte(matrice);
        return matrice;
    }
    rotonda.GetMatriceSvoltePercentuale(matrice);
    for (std::size_t r = 0; r < matrice.size(); ++r) {
        const float totale = rotonda.Ramo(static_cast<std::int16_t>(r + 1)).theDatiTraffico().FlussoTotale();
        for (float& cella : matrice[r]) {
            cella *= totale;
        }
    }
    return matrice;
}

}  // namespace

void modStampaRelazione::riempiAnagraficaRotonda() {
    sezione("riempiAnagraficaRotonda", [&] {
        const Rotonda& r = rotonda();
        const std::array valori{r.Comune(),
                                r.Provincia(),
                                r.Localita(),
                                r.StatoAvanzamento(),
                                r.Titolo(),
                                r.NomeProfessionista(),
                                r.IndirizzoProfessionista(),
                                r.CAPProfessionista(),
                                r.CittaProfessionista(),
                                r.ProvinciaProfessionista(),
                                r.TelefonoProfessionista(),
                                r.EMailProfessionista(),
                                testoData(r.Data()),
                                r.NomeFile()};
        static_assert(valori.size() == segnaposto::anagrafica.size());
        for (std::size_t i = 0; i < valori.size(); ++i) {
            InserisciVariabileWord(segnaposto::anagrafica[i], valori[i]);
        }
        InserisciVariabileWord(segnaposto::denominazione,
                               r.Titolo().empty() ? std::string{} : ", nel progetto denominato «" + r.Titolo() + "»");
        const bool notte = r.CondizioniNotturne();
        InserisciVariabileWord(segnaposto::numeroRami, testoNumero(static_cast<int>(r.NumeroRami())));
        InserisciVariabileWord(segnaposto::tipoAnalisi, nomeAnalisi(r.TipoAnalisi()));
        InserisciVariabileWord(segnaposto::percentile, testoNumero(r.ValorePercentile()));
        InserisciVariabileWord(segnaposto::incidenzaNotte,
                               testoNumero(notte ? static_cast<int>(app_.theAmbiente.PercentualeNotturna()) : 0));
        InserisciVariabileWord(segnaposto::versioneKelvo, versione());
        InserisciVariabileWord(segnaposto::dataRelazione, testoData(app_.orologio.adesso()));
    });
}

void modStampaRelazione::riempiToponomasticaIngressi() {
    sezione("riempiToponomasticaIngressi", [&] {
        Celle celle(*documento_, segnalibro::toponomasticaIngressi);
        celle.scrivi("Località " + rotonda().Localita());
        for (std::int16_t i = 1; i <= rotonda().NumeroRami(); ++i) {
            celle.riga({nomeIngresso(i), rotonda().Ramo(i).Descrizione()});
        }
    });
}

void modStampaRelazione::riempiGeometriaIngressi() {
    sezione("riempiGeometriaIngressi", [&] {
        Celle celle(*documento_, segnalibro::geometriaIngressi);
        for (std::int16_t i = 1; i <= rotonda().NumeroRami(); ++i) {
            const Ramo& ramo = rotonda().Ramo(i);
            celle.riga({nomeIngresso(i), formatta(ramo.SemiLarghezza(), dueDecimali),
                        formatta(ramo.LarghezzaIngresso(), dueDecimali),
                        formatta(ramo.LunghezzaSvasatura(), dueDecimali), formatta(ramo.AngoloConflitto(), dueDecimali),
                        formatta(ramo.RaggioIngresso(), dueDecimali), formatta(ramo.DiametroInscritto(), dueDecimali),
                        siNo(ramo.AttraversamentoPedonale())});
        }
    });
}

/// One row of the walk for each origin, with a cell for each of the seven legs that there can be.
void modStampaRelazione::scriviMatrice(std::string_view segnalibro, const Testi& valori) {
    Celle celle(*documento_, segnalibro);
    for (std::size_t r = 0; r < valori.size(); ++r) {
        celle.scrivi(nomeIngresso(static_cast<std::int16_t>(r + 1)));
        for (std::size_t c = 0; c < static_cast<std::size_t>(massimoRami); ++c) {
            celle.scrivi(c < valori[r].size() ? valori[r][c] : std::string{});
        }
    }
}

void modStampaRelazione::riempiMatriceSvoltePerc() {
    sezione("riempiMatriceSvoltePerc", [&] {
        Matrice matrice;
        rotonda().GetMatriceSvoltePercentuale(matrice);
        scriviMatrice(segnalibro::matriceSvoltePerc, testiMatrice(matrice, quattroDecimali));
    });
}

void modStampaRelazione::riempiMatriceSvolte() {
    sezione("riempiMatriceSvolte", [&] {
        Matrice matrice;
        rotonda().GetMatriceSvolte(matrice);
        scriviMatrice(segnalibro::matriceSvolte, testiMatrice(matrice, dueDecimali));
    });
}

void modStampaRelazione::riempiTotaliMatriceSvolte() {
    sezione("riempiTotaliMatriceSvolte", [&] {
        constexpr std::string_view unita = "[veicoli]";
        const Matrice matrice = matriceVeicoli(rotonda());
        Celle celle(*documento_, segnalibro::totaliMatriceSvolte);
        celle.riga({"", unita, unita});
        for (std::size_t i = 0; i < matrice.size(); ++i) {
            float entrate = 0.0F;
            float uscite = 0.0F;
            for (std::size_t j = 0; j < matrice.size(); ++j) {
                entrate += matrice[i][j];
                uscite += matrice[j][i];
            }
            celle.riga({nomeIngresso(static_cast<std::int16_t>(i + 1)), formatta(entrate, dueDecimali),
                        formatta(uscite, dueDecimali)});
        }
    });
}

void modStampaRelazione::riempiVeicoliEquivalenti() {
    sezione("riempiVeicoliEquivalenti", [&] {
        const CoefficientiVeicoli coefficienti = app_.configurazione.coefficienti();
        for (std::size_t i = 0; i < coefficienti.size(); ++i) {
            InserisciVariabileWord(segnaposto::veicoliEquivalenti[i], formatta(coefficienti[i], dueDecimali));
        }
    });
}

void modStampaRelazione::riempiCondizioniEsterne() {
    sezione("riempiCondizioniEsterne", [&] {
        InserisciVariabileWord(segnaposto::condizioniNotturne, siNo(rotonda().CondizioniNotturne()));
        Celle celle(*documento_, segnalibro::condizioniEsterne);
        for (std::int16_t i = 1; i <= rotonda().NumeroRami(); ++i) {
            const AnalisiMarginale& condizioni = rotonda().Ramo(i).theAnalisiMarginale();
            celle.riga({nomeIngresso(i), condizioni.DescrizioneCondizioniEsterne(),
                        formatta(condizioni.CondizioniEsterne(), dueDecimali)});
        }
    });
}

void modStampaRelazione::riempiTempoModellazione() {
    sezione("riempiTempoModellazione", [&] {
        InserisciVariabileWord(segnaposto::tempoIniziale, testoHHNN(rotonda().TempoIniziale()));
        InserisciVariabileWord(segnaposto::intervallo, fmt::format("{:02}", minutoCampo(rotonda().SegmentoTempo())));
        InserisciVariabileWord(segnaposto::tempoFinale, testoHHNN(rotonda().TempoFinale()));
    });
}

}  // namespace kelvo

#include "reports/foglioRisultati.h"

#include <fmt/format.h>

#include <filesystem>
#include <random>
#include <system_error>

#include "base/guasto.h"
#include "reports/fogli.h"
#include "results/TabellaCapacitaUltima.h"
#include "results/inVigore.h"
#include "results/risultatiProgetto.h"
#include "results/sintesiNodo.h"

namespace kelvo {

namespace {

using foglio::Libro;

constexpr std::uint64_t massimoFoglio = 64UL * 1024UL * 1024UL;

/// A file of a random name in the folder for temporary files, gone with this object.
class FileProvvisorio {
public:
    explicit FileProvvisorio(const std::string& cartella) {
        std::random_device caso;
        percorso_ = fmt::format("{}Risultati-{:08x}{:08x}.xlsx", cartella, caso(), caso());
    }
    FileProvvisorio(const FileProvvisorio&) = delete;
    FileProvvisorio& operator=(const FileProvvisorio&) = delete;
    ~FileProvvisorio() {
        std::error_code ignorato;
        std::filesystem::remove(percorsoDaTesto(percorso_), ignorato);
    }
    const std::string& percorso() const { return percorso_; }
    std::string contenuto() const {
        std::string dati;
        const std::string motivo = leggiFile(percorso_, massimoFoglio, dati);
        if (!motivo.empty()) {
            throw Guasto::conParole(NumeroGuasto::accessoPercorso,
                                    fmt::format("Impossibile leggere \"{}\": {}", percorso_, motivo));
        }
        return dati;
    }

private:
    std::string percorso_;
};

Tabella tabellaVigore(const Applicazione& app) {
    Tabella tabella = tabellaInVigore(inVigore(app));
    tabella.larghezze = {4000, 4000};
    return tabella;
}

Tabella tabellaUltima(const Rotonda& rotonda) {
    TabellaCapacitaUltima ultima;
    ultima.riempi(rotonda);
    Tabella tabella = ultima.tabella();
    tabella.larghezze = {3600, 2800, 2800};
    return tabella;
}

void componi(Libro& libro, Applicazione& app) {
    const Rotonda& rotonda = app.theRotonda();
    const bool conRecord = analisiNelTempo(rotonda);
    libro.proprieta("Verifiche prestazionali - " + rotonda.NomeFile(), rotonda.NomeProfessionista(),
                    app.orologio.adesso());
    foglio::foglioVerifiche(libro, rotonda, conRecord);
    if (conRecord) {
        const SintesiNodo sintesi = sintesiNodo(rotonda);
        foglio::foglioTabella(libro, "Sintesi nodo", {"Risultati: Sintesi nodo", rotonda.NomeFile()},
                              tabellaSintesi(rotonda, sintesi), paroleSintesi(rotonda, sintesi));
        for (std::int16_t i = 1; i <= rotonda.NumeroRami(); ++i) {
            foglio::foglioIngresso(libro, rotonda, i);
        }
    }
    foglio::foglioTabella(libro, "Capacità ultima", {"Risultati: Capacità ultima", rotonda.NomeFile()},
                          tabellaUltima(rotonda), {});
    foglio::foglioTabella(libro, "In vigore", {titoloInVigore, rotonda.NomeFile()}, tabellaVigore(app), {});
}

}  // namespace

std::string foglioRisultati(Applicazione& app) {
    const foglio::NumeriConPunto numeri;
    const FileProvvisorio file(app.theAmbiente.CartellaLavoro());
    Libro libro(file.percorso(), app.theAmbiente.CartellaLavoro());
    componi(libro, app);
    libro.chiudi();
    return file.contenuto();
}

}  // namespace kelvo

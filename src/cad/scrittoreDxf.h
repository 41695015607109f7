#pragma once

#include <string>
#include <string_view>

#include "cad/documentoDxf.h"

/// The groups of a DXF file; used inside the room alone.
namespace kelvo::dxf {

inline constexpr std::string_view stileTesto = "KELVO";
inline constexpr std::string_view stileQuote = "KELVO";
inline constexpr std::string_view layerPunti = "Defpoints";

/// Handles that other entries refer to. Those behind `prima` are given out as they are asked for.
enum class Maniglia : unsigned {
    nessuna = 0,
    tavolaViste = 0x1,
    tavolaLinee,
    tavolaLayer,
    tavolaStili,
    tavolaVedute,
    tavolaSistemi,
    tavolaApplicazioni,
    tavolaQuote,
    tavolaBlocchi,
    bloccoModello,
    bloccoCarta,
    radice,
    gruppi,
    presentazioni,
    stiliMultilinea,
    impostazioniStampa,
    nomiStampa,
    stampaNormale,
    presentazioneModello,
    presentazioneCarta,
    stileDelTesto,
    stileDelleQuote,
    prima = 0x40,
};

/// Appends groups: a code and a value.
class Scrittore {
public:
    void gruppo(int codice, std::string_view valore);
    void gruppo(int codice, const char* valore) { gruppo(codice, std::string_view{valore}); }
    void gruppo(int codice, int valore);
    /// With up to 9 decimals; bulges with 12.
    void gruppo(int codice, double valore, int decimali = 9);
    void gruppo(int codice, Maniglia valore);
    /// x, y and 0 under a code, that and 10, that and 20.
    void punto(int codice, Punto p);
    void punto2d(int codice, Punto p);
    /// The next free handle.
    Maniglia nuova();
    Maniglia prossima() const { return static_cast<Maniglia>(libera_); }

    void apri(std::string_view sezione);
    void chiudi();

    const std::string& testo() const { return testo_; }

private:
    std::string testo_;
    unsigned libera_ = static_cast<unsigned>(Maniglia::prima);
};

/// A dimension with the name of its block and the handle of that.
struct QuotaScritta {
    const Quotatura& quota;
    std::string blocco;
    Maniglia record = Maniglia::nessuna;
};

/// The sections of the tables and of the objects.
void scriviTavole(Scrittore& file, const Documento& documento, const std::vector<QuotaScritta>& quote);
void scriviOggetti(Scrittore& file, const Documento& documento);

/// True if something of it is left to be drawn.
bool disegnabile(const Entita& entita);
void scriviEntita(Scrittore& file, const Entita& entita, Maniglia padrone);
/// True if its points are numbers.
bool disegnabile(const Quotatura& quota);
/// True if there is something between its points that can be measured anew.
bool misurabile(const Quotatura& quota);
/// The dimension, its picture being the block of that name. The text of an angle stays level when it is made anew.
void scriviQuota(Scrittore& file, const Quotatura& quota, const std::string& blocco, Maniglia padrone);

}  // namespace kelvo::dxf

#include <array>
#include <initializer_list>
#include <utility>

#include "cad/scrittoreDxf.h"

namespace kelvo::dxf {

namespace {

void dizionario(Scrittore& file, Maniglia maniglia, Maniglia padrone,
                std::initializer_list<std::pair<const char*, Maniglia>> voci) {
    file.gruppo(0, "DICTIONARY");
    file.gruppo(5, maniglia);
    file.gruppo(330, padrone);
    file.gruppo(100, "AcDbDictionary");
    file.gruppo(281, 1);
    for (const auto& [nome, valore] : voci) {
        file.gruppo(3, nome);
        file.gruppo(350, valore);
    }
}

/// A sheet of A3 in millimetres.
void presentazione(Scrittore& f, const Documento& documento, const char* nome, Maniglia maniglia, Maniglia blocco) {
    const bool modello = blocco == Maniglia::bloccoModello;
    f.gruppo(0, "LAYOUT");
    f.gruppo(5, maniglia);
    f.gruppo(330, Maniglia::presentazioni);
    f.gruppo(100, "AcDbPlotSettings");
    f.gruppo(1, "");
    f.gruppo(2, "");
    f.gruppo(4, "ISO_A3_(420.00_x_297.00_MM)");
    f.gruppo(6, "");
    constexpr std::array reali{std::pair{40, 7.5},   std::pair{41, 20.0},  std::pair{42, 7.5},  std::pair{43, 20.0},
                               std::pair{44, 420.0}, std::pair{45, 297.0}, std::pair{46, 0.0},  std::pair{47, 0.0},
                               std::pair{48, 0.0},   std::pair{49, 0.0},   std::pair{140, 0.0}, std::pair{141, 0.0},
                               std::pair{142, 1.0},  std::pair{143, 1.0}};
    for (const auto& [codice, valore] : reali) {
        f.gruppo(codice, valore);
    }
    constexpr int perModello = 1024;
    const std::array interi{std::pair{70, modello ? perModello : 0}, std::pair{72, 1}, std::pair{73, 0},
                            std::pair{74, modello ? 1 : 5}};
    for (const auto& [codice, valore] : interi) {
        f.gruppo(codice, valore);
    }
    f.gruppo(7, "");
    f.gruppo(75, 16);
    f.gruppo(147, 1.0);
    f.gruppo(148, 0.0);
    f.gruppo(149, 0.0);
    f.gruppo(100, "AcDbLayout");
    f.gruppo(1, nome);
    f.gruppo(70, 1);
    f.gruppo(71, modello ? 0 : 1);
    const pianta::Riquadro foglio{{0, 0}, {420, 297}};
    const pianta::Riquadro& limiti = modello ? documento.estensione : foglio;
    f.punto2d(10, limiti.minimo);
    f.punto2d(11, limiti.massimo);
    f.punto(12, {});
    f.punto(14, limiti.minimo);
    f.punto(15, limiti.massimo);
    f.gruppo(146, 0.0);
    f.punto(13, {});
    f.punto(16, {1, 0});
    f.punto(17, {0, 1});
    f.gruppo(76, 0);
    f.gruppo(330, blocco);
}

}  // namespace

void scriviOggetti(Scrittore& file, const Documento& documento) {
    file.apri("OBJECTS");
    dizionario(file, Maniglia::radice, Maniglia::nessuna,
               {{"ACAD_GROUP", Maniglia::gruppi},
                {"ACAD_LAYOUT", Maniglia::presentazioni},
                {"ACAD_MLINESTYLE", Maniglia::stiliMultilinea},
                {"ACAD_PLOTSETTINGS", Maniglia::impostazioniStampa},
                {"ACAD_PLOTSTYLENAME", Maniglia::nomiStampa}});
    dizionario(file, Maniglia::gruppi, Maniglia::radice, {});
    dizionario(file, Maniglia::presentazioni, Maniglia::radice,
               {{"Model", Maniglia::presentazioneModello}, {"Layout1", Maniglia::presentazioneCarta}});
    dizionario(file, Maniglia::stiliMultilinea, Maniglia::radice, {});
    dizionario(file, Maniglia::impostazioniStampa, Maniglia::radice, {});
    file.gruppo(0, "ACDBDICTIONARYWDFLT");
    file.gruppo(5, Maniglia::nomiStampa);
    file.gruppo(330, Maniglia::radice);
    file.gruppo(100, "AcDbDictionary");
    file.gruppo(281, 1);
    file.gruppo(3, "Normal");
    file.gruppo(350, Maniglia::stampaNormale);
    file.gruppo(100, "AcDbDictionaryWithDefault");
    file.gruppo(340, Maniglia::stampaNormale);
    file.gruppo(0, "ACDBPLACEHOLDER");
    file.gruppo(5, Maniglia::stampaNormale);
    file.gruppo(330, Maniglia::nomiStampa);
    presentazione(file, documento, "Model", Maniglia::presentazioneModello, Maniglia::bloccoModello);
    presentazione(file, documento, "Layout1", Maniglia::presentazioneCarta, Maniglia::bloccoCarta);
    file.chiudi();
}

}  // namespace kelvo::dxf

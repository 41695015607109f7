#include "platform/Piattaforma.h"
#include "ui/Desktop.h"

int main(int argc, char** argv) {
    const auto sistema = kelvo::creaPiattaforma();
    return kelvo::ui::avviaDesktop(argc, argv,
                                   {.file = sistema->file(),
                                    .istanza = sistema->istanza(),
                                    .locale = sistema->locale(),
                                    .documenti = sistema->documenti(),
                                    .impostazioni = sistema->impostazioni(),
                                    .cartellaProgramma = sistema->cartellaProgramma(),
                                    .cartellaLavoro = sistema->cartellaTemporanea(),
                                    .cartellaRecupero = sistema->cartellaDati() + "/Recupero",
                                    .cartellaCopia = sistema->cartellaCopia(),
                                    .processi = &sistema->processi(),
                                    .registro = &sistema->registro(),
                                    .cad = &sistema->cad()});
}

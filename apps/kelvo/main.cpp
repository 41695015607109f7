#include "platform/linux/ServiziLinux.h"
#include "platform/linux/SistemaFileLinux.h"
#include "platform/linux/cartelle.h"
#include "ui/Desktop.h"

int main(int argc, char** argv) {
    kelvo::SistemaFileLinux file;
    const std::string lavoro = kelvo::cartellaTemporanea();
    kelvo::IstanzaLinux istanza(lavoro);
    kelvo::LocaleLinux locale;
    return kelvo::ui::avviaDesktop(argc, argv,
                                   {.file = file,
                                    .istanza = istanza,
                                    .locale = locale,
                                    .cartellaProgramma = kelvo::cartellaEseguibile(),
                                    .cartellaLavoro = lavoro,
                                    .cartellaRecupero = kelvo::cartellaDatiUtente() + "/Recupero"});
}

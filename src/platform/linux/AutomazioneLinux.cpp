#include "platform/linux/AutomazioneLinux.h"

#include "base/guasto.h"

namespace kelvo {

std::string AutomazioneLinux::impedimento() const {
    return "AutoCAD si comanda da un altro programma soltanto in Windows";
}

std::unique_ptr<ProgrammaCAD> AutomazioneLinux::crea(const std::string& nome) {
    throw guastoAutomazione(componenteActiveX, nome);
}

}  // namespace kelvo

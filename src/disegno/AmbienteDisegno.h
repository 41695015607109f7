#pragma once

#include <memory>
#include <string>

namespace kelvo::disegno {

/// What painting needs in a program without windows: an application object of Qt off the screen and the faces of the
/// type. One at a time; none where the program has windows. LC_NUMERIC stays as numbers in files need it.
class AmbienteDisegno {
public:
    /// `cartellaCaratteri`: where the faces stand; without them the system's own stand in.
    explicit AmbienteDisegno(const std::string& cartellaCaratteri);
    AmbienteDisegno(const AmbienteDisegno&) = delete;
    AmbienteDisegno& operator=(const AmbienteDisegno&) = delete;
    ~AmbienteDisegno();

private:
    struct Interno;
    std::unique_ptr<Interno> interno_;
};

}  // namespace kelvo::disegno

#pragma once

namespace kelvo {

/// Saves the project at hand.
class Salvataggio {
public:
    Salvataggio() = default;
    Salvataggio(const Salvataggio&) = delete;
    Salvataggio& operator=(const Salvataggio&) = delete;
    virtual ~Salvataggio() = default;

    /// Asks for a path and writes the project there; `esito` is false where the user gave up or the write failed.
    virtual void SaveRotonda(bool& esito) = 0;
};

}  // namespace kelvo

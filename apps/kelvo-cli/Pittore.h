#pragma once

#include <memory>
#include <string>

namespace kelvo {
class Disegnatore;
}

namespace kelvo::cli {

/// Whoever draws for a command, with what painting needs. One at a time.
class Pittore {
public:
    Pittore() = default;
    Pittore(const Pittore&) = delete;
    Pittore& operator=(const Pittore&) = delete;
    virtual ~Pittore() = default;
    virtual Disegnatore& disegnatore() = 0;
};

/// `cartellaCaratteri`: where the faces of the type stand. Null in a program that was built without the desktop's
/// libraries.
std::unique_ptr<Pittore> creaPittore(const std::string& cartellaCaratteri);

}  // namespace kelvo::cli

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kelvo {

/// What the fields of the windows show at this moment, also before it is written to the project.
class CampiMostrati {
public:
    CampiMostrati() = default;
    CampiMostrati(const CampiMostrati&) = delete;
    CampiMostrati& operator=(const CampiMostrati&) = delete;
    virtual ~CampiMostrati() = default;

    /// Text of a field, by the names of its window and of its control; nothing where the window does not live or has
    /// no such field.
    virtual std::optional<std::string> testo(std::string_view finestra, std::string_view campo) const = 0;
    /// Puts the focus on a field of the window at hand, and the cursor of a table on a row (from 1; 0 for none in
    /// particular). A field that is closed gives way to the next one that may be typed into. False if the window has no
    /// such field or keeps the focus where it is.
    virtual bool fuocoSu(std::string_view campo, int riga) = 0;
};

}  // namespace kelvo

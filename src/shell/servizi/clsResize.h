#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelvo {

/// A rectangle in the units of its window.
struct Rettangolo {
    double L = 0.0;  ///< left
    double T = 0.0;  ///< top
    double W = 0.0;  ///< width
    double H = 0.0;  ///< height
    friend bool operator==(const Rettangolo&, const Rettangolo&) = default;
};

/// Size of a window's inside.
struct Misura {
    double W = 0.0;
    double H = 0.0;
    friend bool operator==(const Misura&, const Misura&) = default;
};

/// Keeps the places of a window's controls in proportion to its size.
///
/// The design rectangle of each control is kept in a tag of the form "@L,T,W,H".
class clsResize {
public:
    /// A window as the resizer sees it: its design size and its controls' rectangles at that size.
    struct Modulo {
        Misura disegno;
        Misura attuale;
        std::vector<Rettangolo> controlli;
    };

    /// The window; its rectangles are taken as the design.
    void SourceForm(Modulo* modulo);
    Modulo* SourceForm() const { return modulo_; }
    /// Takes the rectangles and the size as they are now for the design.
    void ReInitialise();
    /// Fits the window to the screen and places its controls.
    void SizeFormToScreen(Misura schermo);
    /// Places each control: its design rectangle scaled by the ratio of the window's size to its design size.
    /// A design size of 0 scales nothing.
    void ResizeControls();

    /// The tag of each control.
    const std::vector<std::string>& tag() const { return tag_; }

    static std::string scriviTag(const Rettangolo& r);
    /// Nothing if the text is no such tag.
    static std::optional<Rettangolo> leggiTag(std::string_view tag);

private:
    Modulo* modulo_ = nullptr;
    Misura disegno_;
    std::vector<std::string> tag_;
};

}  // namespace kelvo

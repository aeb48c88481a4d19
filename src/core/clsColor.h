#pragma once

#include <QString>

// A colour as red, green and blue (0 to 255 each), and the program's named colours.
class clsColor {
public:
    constexpr clsColor() = default;
    constexpr clsColor(int red, int green, int blue)
        : mRed(Clamped(red)), mGreen(Clamped(green)), mBlue(Clamped(blue)) {}

    constexpr int RedPart() const { return mRed; }
    constexpr int GreenPart() const { return mGreen; }
    constexpr int BluePart() const { return mBlue; }

    // The single number the data file keeps a colour as: red + 256 * green + 65536 * blue.
    constexpr int RGBValue() const { return mRed + 256 * mGreen + 65536 * mBlue; }
    static constexpr clsColor FromRGBValue(int value) {
        return clsColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF);
    }
    // A colour kept as text of that number; the fallback when the text is no such number.
    static clsColor FromRGBText(const QString& text, const clsColor& fallback);

    // "\red" + red + "\green" + green + "\blue" + blue + ";", one entry of a document's colour table.
    QString RTFColor() const;

    constexpr bool operator==(const clsColor&) const = default;

    // ---- Named colours ----
    static constexpr clsColor Blue() { return {219, 226, 244}; }
    static constexpr clsColor Gray() { return {242, 242, 242}; }
    static constexpr clsColor GrayStrikeThroughText() { return {128, 128, 128}; }
    static constexpr clsColor GreenHighlight() { return {30, 132, 30}; }
    static constexpr clsColor Hyperlink() { return {0, 61, 178}; }
    static constexpr clsColor HyperlinkDisabled() { return {185, 185, 185}; }

private:
    static constexpr int Clamped(int value) { return value < 0 ? 0 : (value > 255 ? 255 : value); }

    int mRed = 0;
    int mGreen = 0;
    int mBlue = 0;
};

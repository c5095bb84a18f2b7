#pragma once
// The program's look: Qt's Fusion, drawn with one palette for each set of colours on the screens.

#include <QHash>
#include <QPalette>
#include <QProxyStyle>
#include <QSet>

namespace contarello {

// Fusion keeps the bevels of buttons, boxes and scroll bars it has drawn in the toolkit's pixmap
// cache, under a name made of the element, its state, its size and the cache key of the palette it
// was drawn with. Every palette the program makes (each control's own, each coloured button's at
// each paint) has a cache key of its own, so every paint of a coloured screen adds new names; and
// the cache forgets the pixmaps it evicts but never the names it filed them under (nor does
// QPixmapCache::clear()), about 250 bytes each. Over a school day that is tens of megabytes that
// are never given back.
//
// This style hands Fusion, for every element it draws, the one palette kept here with the same
// colours as the caller's: the names come back the same for the same look, the cache finds what it
// drew before, and the pixels are Fusion's own. The screens' colours are a fixed few, so the palettes
// kept stay a few dozen; past kMaxPalettes (colours that never end, which no screen has) a palette
// goes to Fusion as it comes and the program is no worse off than with Fusion alone.
class ProgramStyle : public QProxyStyle {
    Q_OBJECT
public:
    static constexpr int kMaxPalettes = 1024;

    ProgramStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget = nullptr) const override;

    // How many different sets of colours have been drawn with.
    int palettes() const { return int(keys_.size()); }

    // The palette kept for p's colours, in p's colour group; p itself past kMaxPalettes.
    QPalette shared(const QPalette& p) const;

private:
    class Swap;

    mutable QHash<size_t, QList<QPalette>> byColours_;
    mutable QSet<qint64> keys_; // the cache keys of the palettes kept
};

} // namespace contarello

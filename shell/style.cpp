#include "shell/style.h"

#include <QStyleFactory>
#include <QStyleOption>
#include <algorithm>
#include <utility>

namespace contarello {

namespace {

size_t coloursHash(const QPalette& p) {
    size_t h = 0;
    for (int g = 0; g < QPalette::NColorGroups; ++g)
        for (int r = 0; r < QPalette::NColorRoles; ++r) {
            const QBrush& b = p.brush(QPalette::ColorGroup(g), QPalette::ColorRole(r));
            h = qHashMulti(h, quint64(b.color().rgba64()), int(b.style()));
        }
    return h;
}

} // namespace

// Puts the shared palette in the caller's option for one draw and gives the option its own back
// after. The option is the caller's, made for this draw; Fusion reads it and the caller reads it
// again only once the draw is over.
class ProgramStyle::Swap {
public:
    Swap(const ProgramStyle& style, const QStyleOption* option) : option_(const_cast<QStyleOption*>(option)) {
        if (!option_ || style.keys_.contains(option_->palette.cacheKey())) {
            option_ = nullptr; // already one of ours: a draw Fusion makes inside another
            return;
        }
        own_ = std::exchange(option_->palette, style.shared(option_->palette));
    }
    ~Swap() {
        if (option_) option_->palette = std::move(own_);
    }
    Swap(const Swap&) = delete;
    Swap& operator=(const Swap&) = delete;

private:
    QStyleOption* option_;
    QPalette own_;
};

ProgramStyle::ProgramStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

QPalette ProgramStyle::shared(const QPalette& p) const {
    if (keys_.contains(p.cacheKey())) return p;
    QList<QPalette>& same = byColours_[coloursHash(p)];
    QPalette kept;
    const auto found = std::find(same.cbegin(), same.cend(), p);
    if (found != same.cend()) {
        kept = *found;
    } else {
        if (keys_.size() >= kMaxPalettes) return p;
        kept = p; // nothing here ever changes it, so its cache key stays
        same.append(kept);
        keys_.insert(kept.cacheKey());
    }
    kept.setCurrentColorGroup(p.currentColorGroup());
    return kept;
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    const Swap swap(*this, option);
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    const Swap swap(*this, option);
    QProxyStyle::drawControl(element, option, painter, widget);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const Swap swap(*this, option);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

} // namespace contarello

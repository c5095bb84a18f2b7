#include "graphics/numbertable.h"
#include "core/lang.h"

#include <QPainter>

namespace contarello {

// ---- Casella ----

Casella::Casella(QWidget* parent) : CommandButton(parent) {
    // The answer is a click; a hundred stops for the Tab key would only hide the answer box.
    setFocusPolicy(Qt::NoFocus);
}

void Casella::setBackColor(QColor c) {
    // Only this cell changes: its caption picks its own ink as it paints, so the other controls
    // of the screen have nothing to follow.
    backColor_ = c;
    update();
}

void Casella::paintEvent(QPaintEvent*) {
    QPainter p(this);
    // A disabled cell is the answer just given: its own colour much darker, with its number in
    // white, plain at a glance and still red where it was red.
    QColor fondo = isEnabled() ? backColor_ : backColor_.darker(190);
    if (isDown()) fondo = fondo.darker(115);
    p.fillRect(rect(), fondo);
    // Neighbours overlap by a pixel, so each cell's border is the line between two cells.
    p.setPen(QColor(0x30, 0x30, 0x30));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
    p.setPen(isEnabled() ? InchiostroSu(fondo) : Qt::white);
    p.setFont(font());
    // Centred on the digits: the leading blank of the caption would push them to the left.
    p.drawText(rect(), Qt::AlignCenter, Trim(text()));
}

// ---- TabellaForm ----

namespace {

constexpr int kPrimaCella = 120, kPasso = 600, kLato = 615;

} // namespace

FrameOptions TabellaForm::Opzioni(FrameOptions options) {
    constexpr int x = ColonnaTabella::left;
    FrameLayout& at = options.layout;
    at.facce = {x + 1080, 240, 855, 750};
    at.label1 = {x, 1260, 1095, 375};
    at.esatti = {x + 1200, 1200, 1095, 495};
    at.label2 = {x, 1800, 1095, 375};
    at.errati = {x + 1200, 1740, 1095, 495};
    at.avanti = {x + 720, 4920, 1575, 1215};
    options.captions = kMenuLargo;
    return options;
}

TabellaForm::TabellaForm(Program& program, int16_t numeroScheda, FrameOptions options)
    : ExerciseForm(program, Variante::C, numeroScheda, 9600, 6960, Opzioni(options)) {
    const QFont font = Arial(18);
    for (int i = 0; i < 100; ++i) {
        auto* c = adopt(new Casella(client()), indexed(QStringLiteral("Numero"), i),
                        kPrimaCella + kPasso * (i % 10), kPrimaCella + kPasso * (i / 10), kLato, kLato);
        c->setFont(font);
        c->setBackColor(kCellaLibera);
        c->Click = [this, i] { Numero_Click(i); };
        Numero.set(i, c);
    }
}

void TabellaForm::ScriviTutti() {
    for (auto& [i, c] : Numero)
        c->setCaption(Str(i));
}

void TabellaForm::AbilitaTutte() {
    for (auto& [i, c] : Numero)
        c->setEnabled(true);
}

} // namespace contarello

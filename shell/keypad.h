#pragma once
// The keypad of the classroom's touch panel: a strip of large keys under every screen that takes a
// typed answer, with the digits, "Cancella" and "Invio", and the letters on the screens whose boxes
// take words. Each key is a real key pressed and released in the answer box, through the box's own
// key handling, so its filter and Enter on release apply as for a keyboard.

namespace contarello {

struct Program;
class Form;
class TextBox;

// A box the child answers in; takesWords gives its screen the letters too.
void MarkAnswerBox(TextBox& box, bool takesWords);

// Lavagna mode: the strip under every loaded screen with an answer box, and under each one shown
// later. Once on, it stays on for the run.
void StartLavagna(Program& app);

// The room --lavagna leaves under the tallest screen with an answer box, in twips at scale 1: two
// rows of the largest keys, with their margins.
constexpr int kKeypadRoomTwips = 4400;

// Puts the strip under the screen when lavagna mode is on and the screen has an answer box; nothing
// if it is there already. The window grows by the strip and stays on the display.
class Keypad {
public:
    static void attach(Form& form);
};

} // namespace contarello

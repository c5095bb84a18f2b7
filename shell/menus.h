#pragma once
// The start screen and the three menus that lead to every exercise.

#include "shell/form.h"

#include <memory>

namespace contarello {

class FormAvvio : public Form {
    Q_OBJECT
public:
    explicit FormAvvio(Program& app);
    void Load() override;

private:
    ControlArray<Label> Label2;
    CommandButton* BottoneAvvio;
};

class FormMenu : public Form {
    Q_OBJECT
public:
    explicit FormMenu(Program& app);
    void Load() override;

private:
    void Command4_Click();
    ControlArray<OptionButton> Option1;
    // The voice, off or on for the run: a pair of options of their own beside the other pair.
    ControlArray<OptionButton> OpzioneVoce;
};

// One button of an exercise menu: the control, its caption exactly, the screen it opens, and where
// it stands (column from 0, row from 0).
struct VoceMenu {
    const char* control;
    const char* caption;
    const char* form;
    int column;
    int row;
};

struct Intestazione {
    const char* control;
    const char* caption;
    int left, top, width;
};

// FormMenuNumeri and FormMenuGrafici: buttons in columns, each opening its screen; one table each.
class ExerciseMenuForm : public Form {
    Q_OBJECT
public:
    struct Layout {
        const char* form;
        int width, height;
        const VoceMenu* voci;
        int nVoci;
        const Intestazione* intestazioni;
        int nIntestazioni;
        int firstTop; // where row 0 stands, in twips
        int command1Column, command1Top;
    };
    ExerciseMenuForm(Program& app, const Layout& layout);
    void Load() override;
};

// The start screen and the three menus, each under its own name.
FormList MenuForms();

} // namespace contarello

#include "shell/navigator.h"
#include "shell/form.h"
#include "shell/program.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace contarello {

namespace {
// Brings a window up; the offscreen platform of the driver and the tests has no stacking to change.
void toFront(Form* form) {
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) return;
    form->raise();
    form->activateWindow();
}
} // namespace

FormList Join(std::initializer_list<FormList> lists) {
    FormList all;
    for (const FormList& l : lists)
        all.insert(all.end(), l.begin(), l.end());
    return all;
}

Navigator::Navigator(Program& app, std::vector<FormEntry> table, EventLog* log)
    : app_(app), table_(std::move(table)), log_(log) {}

Navigator::~Navigator() {
    for (Form* f : forms_)
        delete f;
}

bool Navigator::exists(const QString& name) const {
    return std::any_of(table_.begin(), table_.end(),
                       [&](const FormEntry& e) { return name == QLatin1String(e.name); });
}

Form* Navigator::find(const QString& name) const {
    for (Form* f : forms_)
        if (f->name() == name) return f;
    return nullptr;
}

std::vector<Form*> Navigator::loaded() const {
    return forms_;
}

Form* Navigator::Show(const QString& name) {
    if (ended_) return nullptr;
    Form* form = find(name);
    if (!form) {
        auto it = std::find_if(table_.begin(), table_.end(),
                               [&](const FormEntry& e) { return name == QLatin1String(e.name); });
        if (it == table_.end()) return nullptr;
        form = it->make(app_).release();
        if (!form) return nullptr;
        // The table is the one source of a screen's name.
        form->setObjectName(name);
        forms_.push_back(form);
        if (log_) log_->add({{"event", "load"}, {"form", name}});
        form->Load();
        if (ended_ || find(name) != form) return form; // Load itself left the screen
    }
    if (QScreen* screen = QGuiApplication::primaryScreen()) {
        const QRect area = screen->availableGeometry();
        form->move(area.center() - QPoint(form->width() / 2, form->height() / 2));
    }
    form->show();
    toFront(form);
    makeActive(form);
    return form;
}

void Navigator::makeActive(Form* form) {
    if (active() == form) return;
    order_.erase(std::remove(order_.begin(), order_.end(), form), order_.end());
    order_.push_back(form);
    if (log_) log_->add({{"event", "activate"}, {"form", form->name()}});
    form->Activate();
}

void Navigator::bringToFront(Form* form) {
    if (ended_ || std::find(forms_.begin(), forms_.end(), form) == forms_.end()) return;
    toFront(form);
    makeActive(form);
}

void Navigator::windowActivated(Form* form) {
    if (followWindowSystem_) bringToFront(form);
}

void Navigator::Unload(Form* form) {
    if (ended_ || std::find(forms_.begin(), forms_.end(), form) == forms_.end()) return;
    const bool wasActive = active() == form;
    if (log_) log_->add({{"event", "unload"}, {"form", form->name()}});
    form->Unload();
    forms_.erase(std::remove(forms_.begin(), forms_.end(), form), forms_.end());
    order_.erase(std::remove(order_.begin(), order_.end(), form), order_.end());
    form->hide();
    // The handler that unloads a screen is often one of its own: it goes when that handler is over.
    form->deleteLater();
    if (forms_.empty()) {
        End();
        return;
    }
    if (wasActive) {
        Form* under = order_.back();
        toFront(under);
        if (log_) log_->add({{"event", "activate"}, {"form", under->name()}});
        under->Activate();
    }
}

void Navigator::End() {
    if (ended_) return;
    ended_ = true;
    if (log_) log_->add({{"event", "end"}});
    if (onEnd) onEnd();
}

} // namespace contarello

#include "shell/qtservices.h"
#include "shell/controls.h"
#include "shell/fonts/fonts.h"
#include "shell/printout.h"
#include "shell/scaledstyle.h"
#include "shell/style.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QLibrary>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QStandardPaths>
#include <QTimer>
#include <QTranslator>
#include <chrono>
#include <cmath>

namespace contarello {

struct QtClock::State {
    QElapsedTimer started;
    QObject context;
    int next = 1;
    std::map<int, QTimer*> timers;
};

QtClock::QtClock() : state_(std::make_unique<State>()) {
    state_->started.start();
}

QtClock::~QtClock() = default; // the timers go with their context

qint64 QtClock::msecs() {
    return state_->started.elapsed();
}

int QtClock::after(int ms, std::function<void()> what) {
    const int ticket = state_->next++;
    auto* timer = new QTimer(&state_->context);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, &state_->context, [this, ticket, what = std::move(what)] {
        cancel(ticket);
        if (what) what();
    });
    state_->timers[ticket] = timer;
    timer->start(std::max(0, ms));
    return ticket;
}

void QtClock::cancel(int ticket) {
    auto it = state_->timers.find(ticket);
    if (it == state_->timers.end()) return;
    it->second->stop();
    it->second->deleteLater();
    state_->timers.erase(it);
}

void PrepareToolkit(QApplication& app) {
    // Fusion, with its pixmap cache kept from growing for ever (see shell/style.h).
    QApplication::setStyle(new ProgramStyle);
    app.setFont(QFont(ProgramFamily(), 9));
}

bool InstallItalianTexts(QCoreApplication& app) {
    auto* qt = new QTranslator(&app);
    if (!qt->load(QLocale(QLocale::Italian, QLocale::Italy), QStringLiteral("qtbase"), QStringLiteral("_"),
                  QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        return false;
    QCoreApplication::installTranslator(qt);
    return true;
}

double QtRandom::Rnd() {
    return std::generate_canonical<double, 32>(gen_);
}

void QtRandom::Randomize() {
    gen_.seed(static_cast<unsigned>(std::chrono::system_clock::now().time_since_epoch().count()));
}

QFunctionPointer ResolveModule(const QString& moduleDir, const ProgramModule& module) {
    QLibrary lib(moduleDir + QLatin1Char('/') + QLatin1String(module.library));
    return lib.resolve(module.entry); // the library stays loaded once resolved
}

LazySound::~LazySound() = default;

Sound* LazySound::module() {
    if (!tried_) {
        tried_ = true;
        using Make = Sound* (*)();
        if (auto make = reinterpret_cast<Make>(ResolveModule(moduleDir_, kSoundModule))) sound_.reset(make());
    }
    return sound_.get();
}

void LazySound::play(const QString& path) {
    if (Sound* s = module()) s->play(path);
}

void LazySound::preload(const QString& path) {
    if (Sound* s = module()) s->preload(path);
}

namespace {
// The boxes are read by a parent or a teacher beside the child: a size that reads from a step back.
// The file dialog keeps it at every scale.
QFont kBoxFont() {
    QFont f(ProgramFamily());
    f.setPointSizeF(12);
    return f;
}
// The message and input boxes grow with the screens, like everything on them.
QFont FontScalato() {
    return Arial(12, false);
}
int scalato(int pixels) {
    return int(std::lround(pixels * ScaleFactor()));
}
// The window system writes the title in the bar beside its own icon and buttons: a box at least
// this wide shows the whole title, however short its text.
int LarghezzaPerTitolo(const QString& title) {
    return QFontMetrics(FontScalato()).horizontalAdvance(title) + scalato(180);
}

} // namespace

int QtDialogs::MsgBox(const QString& text, int style, const QString& title) {
    QMessageBox box(QApplication::activeWindow());
    box.setFont(FontScalato());
    box.setWindowTitle(title);
    box.setText(text);
    // The box sizes itself to its text; a row as wide as the title keeps it from getting narrower.
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout()))
        grid->addItem(
            new QSpacerItem(LarghezzaPerTitolo(title), 0, QSizePolicy::Minimum, QSizePolicy::Minimum),
            grid->rowCount(), 0, 1, grid->columnCount());
    QStyle::StandardPixmap icona = QStyle::SP_CustomBase;
    switch (style & 0xF0) {
    case vbCritical:
        icona = QStyle::SP_MessageBoxCritical;
        break;
    case 32:
        icona = QStyle::SP_MessageBoxQuestion;
        break;
    case 48:
        icona = QStyle::SP_MessageBoxWarning;
        break;
    case vbInformation:
        icona = QStyle::SP_MessageBoxInformation;
        break;
    default:
        break;
    }
    const bool siNo = (style & 0xF) == 4;
    box.setStandardButtons(siNo ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok);
    if (siNo) box.setDefaultButton(QMessageBox::Yes);
    FollowTheScale(box);
    // The icon drawn at the box's own scale, not grown from the toolkit's small one.
    if (icona != QStyle::SP_CustomBase) {
        const int lato = box.style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, &box);
        // The theme may hold the icon no larger than the toolkit's own size: taken large, fitted.
        const QPixmap grande = box.style()->standardIcon(icona, nullptr, &box).pixmap(QSize(128, 128));
        box.setIconPixmap(grande.scaled(lato, lato, Qt::KeepAspectRatio, Qt::SmoothTransformation));
    }
    // The box wraps a text wider than its own limit in pixels; a text that fits a box at scale 1
    // keeps its one line at any scale.
    if (auto* testo = box.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"))) {
        const int riga =
            QFontMetrics(testo->font()).boundingRect(QRect(0, 0, 100000, 100000), 0, text).width();
        testo->setMinimumWidth(std::min(riga, scalato(500)));
    }
    const int scelta = box.exec();
    return siNo ? (scelta == QMessageBox::Yes ? vbYes : vbNo) : vbOK;
}

QString QtDialogs::InputBox(const QString& prompt, const QString& title, const QString& defaultText) {
    QInputDialog box(QApplication::activeWindow());
    box.setFont(FontScalato());
    box.setWindowTitle(title);
    box.setLabelText(prompt);
    box.setTextValue(defaultText);
    box.setMinimumWidth(LarghezzaPerTitolo(title));
    box.okButtonText(); // the box makes its parts on first need: here, so that they take the scale
    FollowTheScale(box);
    return box.exec() == QDialog::Accepted ? box.textValue() : QString();
}

QString QtDialogs::SaveFile(const QString& title, const QString& defaultName, const QString& filter) {
    if (folder_.isEmpty()) {
        folder_ = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        if (!QFileInfo(folder_).isDir()) folder_ = QDir::homePath();
    }
    // Qt's own dialog rather than the desktop's: it speaks Italian through the translations loaded
    // at start, whatever the desktop is.
    QFileDialog dialog(QApplication::activeWindow(), title, QDir(folder_).filePath(defaultName), filter);
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.setFont(kBoxFont());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
    const QString path = dialog.selectedFiles().constFirst();
    folder_ = QFileInfo(path).absolutePath(); // the next sheet goes to the same folder
    return path;
}

std::unique_ptr<QPagedPaintDevice> QtPrinter::open(const QString& docName) {
    if (!tried_) {
        tried_ = true;
        open_ = reinterpret_cast<Open>(ResolveModule(moduleDir_, kPrintModule));
    }
    return std::unique_ptr<QPagedPaintDevice>(open_ ? open_(docName) : nullptr);
}

void QtPrinter::endDoc() {
    const QString text = takeText();
    const auto printer = open(takeDocName());
    QPainter p;
    if (!printer || !p.begin(printer.get())) return;
    PaintText(p, *printer, {font_, size_, text});
    p.end();
}

void QtPrinter::printForm(QWidget& form, const QString&) {
    const auto printer = open(takeDocName());
    QPainter p;
    if (!printer || !p.begin(printer.get())) return;
    PaintWidget(p, *printer, form);
    p.end();
}

} // namespace contarello

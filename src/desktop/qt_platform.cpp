#include "desktop/qt_platform.h"

#include <QApplication>
#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGroupBox>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QThread>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "desktop/after_painting.h"
#include "desktop/boxes.h"
#include "desktop/command_line.h"
#include "desktop/decode_picture.h"
#include "desktop/grid_view.h"
#include "desktop/program_dialog.h"
#include "desktop/qt_pages.h"
#include "desktop/rich_text_view.h"
#include "desktop/text.h"
#include "toolkit/files.h"

namespace brindlepage {

namespace {

constexpr Milliseconds kShortestPause = 10;

// A file dialog's end waits until the system watches its folder no more.
struct DeleteLater {
  void operator()(QFileDialog* dialog) const { DeleteAfterPainting(dialog); }
};

// "Programs (*.exe)|*.exe|Pictures|*.bmp;*.jpg" as Qt writes it.
QString ToQtFilter(std::string_view filter) {
  const QStringList parts = ToQString(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    const QString name = parts[i].section('(', 0, 0).trimmed();
    filters << QString("%1 (%2)").arg(name, QString(parts[i + 1]).replace(';', ' '));
  }
  return filters.join(";;");
}

bool InCodePage(const QString& text) {
  const std::u32string characters = text.toStdU32String();
  return std::all_of(characters.begin(), characters.end(),
                     [](char32_t c) { return code_page::FromUnicode(c).has_value(); });
}

QString NativeName(std::string_view name) {
  return QString::fromStdU32String(files::NativePath(name).u32string());
}

// As the program names it, who keeps names in lines of the code page. What it could not find again
// by that name is refused.
std::string FileName(const QString& file) {
  const bool can_be_kept = InCodePage(file) && !file.contains('\n') && !file.contains('\r');
  if (!can_be_kept) throw RunTimeError(Fault::BadFileName);
  return FromQString(file);
}

// What a program is told: a file by its name on this machine, anything else as it stands.
QString NativeArgument(const std::string& argument) {
  try {
    const QString name = NativeName(argument);
    if (QFileInfo::exists(name)) return name;
  } catch (const RunTimeError&) {
    // No name of a file.
  }
  return ToQString(argument);
}

// The file of a program, be it named by its path or alone; empty if there is none.
QString ProgramFile(const std::string& path) {
  const QString name = NativeArgument(path);
  const QFileInfo file(name);
  if (file.isFile() && file.isExecutable()) return file.absoluteFilePath();
  return QStandardPaths::findExecutable(name);
}

// A dialog that unfolds its options does not reach out of the screen.
class OnScreen : public QObject {
 public:
  explicit OnScreen(QDialog& dialog) : QObject(&dialog) { dialog.installEventFilter(this); }

  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (dialog == nullptr || event->type() != QEvent::Resize || !dialog->isVisible()) return false;
    const QRect room = dialog->screen()->availableGeometry();
    const QRect frame = dialog->frameGeometry();
    const int up = qMin(frame.bottom() - room.bottom(), frame.top() - room.top());
    if (up > 0) dialog->move(dialog->pos() - QPoint(0, up));
    return false;
  }
};

// A file for what is printed that isn't there yet, in the folder of the last one.
QString FreePdfFile(const QPrinter& printer) {
  QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  if (!printer.outputFileName().isEmpty()) {
    folder = QFileInfo(printer.outputFileName()).absolutePath();
  } else if (!QFileInfo(folder).isDir()) {
    folder = QDir::homePath();
  }
  QString title = printer.docName().replace('/', '-');
  if (title.endsWith(".rtf", Qt::CaseInsensitive)) title.chop(4);  // a saved worksheet
  const QString name = folder + "/" + title;
  QString file = name + ".pdf";
  for (int i = 2; QFileInfo::exists(file); ++i) file = QString("%1 %2.pdf").arg(name).arg(i);
  return file;
}

// The library's own dialog shows them all the same, and they would count for nothing.
void HidePageNumbers(const QPrintDialog& dialog) {
  const auto* range = dialog.findChild<QGroupBox*>("gbPrintRange");
  if (range == nullptr) return;
  for (QWidget* part : range->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    const QString name = part->objectName();
    if (name != "printAll" && name != "printSelection") part->hide();
  }
}

}  // namespace

QtPlatform::QtPlatform(Loop& loop, Windows& windows) : loop_(loop), windows_(windows) {
  connect(&loop, &Loop::Ended, this, [] {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      auto* dialog = qobject_cast<QDialog*>(window);
      if (dialog != nullptr && dialog->isModal() && dialog->isVisible()) dialog->reject();
    }
  });
}

QtPlatform::~QtPlatform() = default;

void QtPlatform::PrepareForBox() {
  windows_.Flush();
  loop_.TakeStock();
}

bool QtPlatform::Run(QDialog& dialog) {
  PrepareForBox();
  new OnScreen(dialog);
  return dialog.exec() == QDialog::Accepted;
}

BoxAnswer QtPlatform::MessageBox(std::string_view text, std::string_view title,
                                 BoxButtons buttons) {
  PrepareForBox();
  return AskMessage(ToQString(title), ToQString(text), buttons, windows_.Front());
}

std::optional<std::string> QtPlatform::InputBox(std::string_view prompt, std::string_view title,
                                                std::string_view default_text) {
  LineBox box(ToQString(title), ToQString(prompt), ToQString(default_text), windows_.Front());
  if (!Run(box)) return std::nullopt;
  return FromQString(box.Text());
}

QPrinter& QtPlatform::Printer() {
  if (printer_ == nullptr) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  return *printer_;
}

std::optional<PrintChoice> QtPlatform::PrintDialog(unsigned flags) {
  QPrinter& printer = Printer();
  printer.setPrintRange(QPrinter::AllPages);
  printer.setCopyCount(1);
  printer.setDocName(windows_.Front()->windowTitle());
  QPrintDialog dialog(&printer, windows_.Front());
  dialog.setOption(QAbstractPrintDialog::PrintSelection, !(flags & kPrintNoSelection));
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, !(flags & kPrintNoPageNumbers));
#ifdef Q_OS_WIN
  dialog.setOption(QAbstractPrintDialog::PrintToFile, !(flags & kPrintNoFile));
#else
  // Here the PDF file is one of the printers, and the only one where no other is set up.
  dialog.setOption(QAbstractPrintDialog::PrintToFile);
  if (auto* file = dialog.findChild<QLineEdit*>("filename")) file->setText(FreePdfFile(printer));
  if (flags & kPrintNoPageNumbers) {
    // Once it has come up with them.
    QTimer::singleShot(0, &dialog, [&dialog] { HidePageNumbers(dialog); });
  }
#endif
  if (!Run(dialog)) return std::nullopt;
  return printer.printRange() == QPrinter::Selection ? PrintChoice::Selection : PrintChoice::All;
}

void QtPlatform::Print(Control& box, int start, int length) {
  if (auto* rich = dynamic_cast<RichTextBox*>(&box)) {
    PrintRichText(*rich, start, length, Printer());
  }
}

QFileDialog* QtPlatform::MakeOpenDialog(std::string_view filter) {
  auto* dialog = new QFileDialog(windows_.Front());
  dialog->setFileMode(QFileDialog::ExistingFile);
  if (AsksForPrograms(filter)) {
    OfferPrograms(*dialog);
  } else if (!filter.empty()) {
    dialog->setNameFilter(ToQtFilter(filter));
  }
  return dialog;
}

// Thousands of programs take a while to list; the desktop's own dialogs have a process of their
// own for that.
void QtPlatform::ExpectOpenDialog(std::string_view filter) {
  if (!AsksForPrograms(filter)) return;
  QTimer::singleShot(kUntilPainted, this, [this, wanted = std::string(filter)] {
    if (programs_ != nullptr || loop_.runtime().InHandler()) return;
    programs_ = MakeOpenDialog(wanted);
    programs_->grab();  // which styles it and lays it out
  });
}

std::optional<std::string> QtPlatform::OpenDialog(std::string_view title, std::string_view filter,
                                                  std::string_view folder) {
  const bool for_programs = AsksForPrograms(filter);
  const QPointer<QFileDialog> ahead = for_programs ? std::exchange(programs_, nullptr) : nullptr;
  const std::unique_ptr<QFileDialog, DeleteLater> dialog(ahead != nullptr ? ahead.data()
                                                                          : MakeOpenDialog(filter));
  dialog->setWindowTitle(ToQString(title));
  if (!for_programs && !folder.empty()) dialog->setDirectory(NativeName(folder));
  if (!Run(*dialog) || dialog->selectedFiles().isEmpty()) return std::nullopt;
  return FileName(dialog->selectedFiles().front());
}

void QtPlatform::StartProgram(std::string_view command_line) {
  const CommandLine command = SplitCommandLine(
      command_line, [](const std::string& path) { return !ProgramFile(path).isEmpty(); });
  QStringList arguments;
  for (const std::string& argument : command.arguments) arguments << NativeArgument(argument);
  const QString program = ProgramFile(command.program);
  if (program.isEmpty() || !QProcess::startDetached(program, arguments, QDir::currentPath())) {
    throw RunTimeError(Fault::FileNotFound);
  }
}

bool QtPlatform::CanShow(const Picture& picture) {
  return picture.format == "wmf" || !DecodePicture(picture.bytes).isNull();
}

void QtPlatform::Beep() { QApplication::beep(); }

Size QtPlatform::ScreenSize() const {
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return {};
  const QSize pixels = screen->availableSize();
  return {pixels.width() * kTwipsPerPixel, pixels.height() * kTwipsPerPixel};
}

std::vector<std::string> QtPlatform::ScreenFonts() const {
  std::vector<std::string> fonts;
  for (const QString& family : QFontDatabase::families()) {
    if (QFontDatabase::isPrivateFamily(family) || !InCodePage(family)) continue;
    fonts.push_back(FromQString(family));
  }
  if (fonts.empty()) fonts.push_back(FromQString(QApplication::font().family()));
  return fonts;
}

void QtPlatform::Pause(Milliseconds time) {
  windows_.Flush();
  const Milliseconds end = Now() + time;
  loop_.LetWindowsPaint();
  for (Milliseconds left = end - Now(); left > 0; left = end - Now()) {
    QThread::msleep(static_cast<unsigned long>(std::min(left, kShortestPause)));
    loop_.LetWindowsPaint();
  }
}

FormPicture QtPlatform::PictureOf(Form& form) {
  if (form.PlacesControls()) return PictureOfPlacedForm(form);
  windows_.Flush();
  FormView* view = windows_.Find(form);
  const QImage image = view == nullptr ? QImage() : view->grab().toImage();
  QBuffer file;
  file.open(QIODevice::WriteOnly);
  image.save(&file, "png");
  return {"png", file.data().toStdString(), image.width() * kTwipsPerPixel,
          image.height() * kTwipsPerPixel};
}

std::unique_ptr<PrinterPages> QtPlatform::StartPages() {
  return std::make_unique<QtPages>(Printer());
}

void QtPlatform::FatalError(int number, std::string_view text) {
  // The program has ended already, but its windows stay until this has been read.
  const Loop::TimersHeld held(loop_);
  PrepareForBox();
  const QString message = QString("Run-time error '%1':\n\n%2").arg(number).arg(ToQString(text));
  AskMessage(kProgramName, message, BoxButtons::Ok, windows_.Front());
  windows_.FlushSoon();
}

bool QtPlatform::AskToWait() {
  // The handler that draws is in the middle of its work: no timer may run in it.
  const Loop::TimersHeld held(loop_);
  ChoiceBox box(kProgramName,
                "Brindlepage has been at work on this for a while and may never get done. You can "
                "go on waiting, or close the program.",
                {"Wait", "Close the program"}, 0, windows_.Front());
  return box.Ask() == 0;
}

}  // namespace brindlepage

#pragma once

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QTextBlock>
#include <QTextLayout>
#include <QtTest/QTest>
#include <functional>
#include <sstream>

#include "desktop/rich_text_view.h"
#include "toolkit/code_page.h"
#include "toolkit/form.h"
#include "toolkit/random_source.h"

namespace brindlepage {

// A desktop on which nothing is asked.
class QuietPlatform : public Platform {
 public:
  BoxAnswer MessageBox(std::string_view, std::string_view, BoxButtons) override {
    return BoxAnswer::Ok;
  }
  std::optional<std::string> InputBox(std::string_view, std::string_view,
                                      std::string_view) override {
    return std::nullopt;
  }
  std::optional<PrintChoice> PrintDialog(unsigned) override { return std::nullopt; }
  void Print(Control&, int, int) override {}
  std::optional<std::string> OpenDialog(std::string_view, std::string_view,
                                        std::string_view) override {
    return std::nullopt;
  }
  void StartProgram(std::string_view) override {}
  void Beep() override {}
  Size ScreenSize() const override { return {15360, 11520}; }
  std::vector<std::string> ScreenFonts() const override { return {}; }
  Milliseconds Now() const override { return 0; }
  void Pause(Milliseconds) override {}
  FormPicture PictureOf(Form&) override { return {}; }
  std::unique_ptr<PrinterPages> StartPages() override { return nullptr; }
  void FatalError(int number, std::string_view text) override {
    ADD_FAILURE() << number << " " << text;
  }
  void FormActivated(Form&) override {}
  void FormHidden(Form&) override {}
  void FormUnloaded(Form&) override {}
  void FormChanged(Form&) override {}
  void ControlChanged(Control&) override {}
};

inline constexpr Screen kSheet{1};

class SheetForm : public Form {
 public:
  explicit SheetForm(Runtime& own_runtime) : Form(own_runtime, kSheet, "SheetForm", "Sheet") {}
  RichTextBox Box{*this, "Box", "Courier New", 9.75};
  RichTextBox KeyBox{*this, "KeyBox", "Times New Roman", 14.25};
};

// One line a paragraph: its alignment, then its runs with what can be seen of them.
class Description {
 public:
  void Begin(Alignment alignment) {
    text_ << "\n"
          << "lrc"[static_cast<int>(alignment)];
    look_.clear();
  }
  void Add(char32_t character, const std::string& font, double size, bool bold, bool italic,
           bool underline, std::uint32_t color, bool picture) {
    std::ostringstream look;
    look << " [" << font << " " << size << " " << bold << italic << underline << " " << std::hex
         << color << (picture ? " picture" : "") << "] ";
    if (look.str() != look_) text_ << look.str();
    look_ = look.str();
    text_ << (character == U'\n' ? "\\n" : code_page::UnicodeToUtf8(std::u32string(1, character)));
  }
  std::string Text() const { return text_.str(); }

 private:
  std::ostringstream text_;
  std::string look_;
};

inline std::string Describe(const RichText& text) {
  Description description;
  for (const RichText::Paragraph& paragraph : text.Paragraphs()) {
    description.Begin(paragraph.alignment);
    for (int i = paragraph.start; i < paragraph.start + paragraph.length; ++i) {
      const CharFormat& f = text.FormatAt(i);
      description.Add(text.CharacterAt(i), f.font, f.size / 20.0, f.bold, f.italic, f.underline,
                      f.color, f.picture != nullptr);
    }
  }
  return description.Text();
}

class AnOpenSheet : public ::testing::Test {
 protected:
  AnOpenSheet() {
    runtime.Dispatch([this] { runtime.forms().Show(kSheet); });
    view = std::make_unique<RichTextView>(box(), runtime);
    view->resize(900, 700);
    view->show();
    view->setFocus();
  }
  ~AnOpenSheet() override { QApplication::clipboard()->clear(); }

  SheetForm& form() { return *runtime.forms().Find<SheetForm>(kSheet); }
  RichTextBox& box() { return form().Box; }

  // Sets the document and shows it.
  void Compose(const std::function<void(RichTextBox&)>& compose) {
    runtime.Dispatch([&] {
      box().Text("");
      compose(box());
    });
    view->Mirror();
  }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(view.get(), key, modifiers);
  }
  void Type(const char* text) { QTest::keyClicks(view.get(), text); }
  void PutCaret(int position, int length = 0) {
    runtime.Dispatch([&] {
      box().SelStart(position);
      box().SelLength(length);
    });
    view->Mirror();
  }
  std::string BoxText() { return code_page::UnicodeToUtf8(box().PlainText()); }

  // What the view shows, as Describe() tells of the box. The font is the stored one.
  std::string Shown() {
    Description description;
    const auto add = [&](char32_t c, const QTextCharFormat& f) {
      const auto id = RichTextLayout::FormatId(f);
      const QColor color = f.foreground().color();
      description.Add(
          c, id ? box().Format(*id).font : "no font", f.fontPointSize(),
          f.fontWeight() == QFont::Bold, f.fontItalic(), f.fontUnderline(),
          static_cast<std::uint32_t>(color.blue() << 16 | color.green() << 8 | color.red()),
          f.objectType() == RichTextPictures::kObjectType);
    };
    for (QTextBlock b = view->document().begin(); b.isValid(); b = b.next()) {
      const Qt::Alignment shown = b.blockFormat().alignment();
      description.Begin(shown & Qt::AlignHCenter ? Alignment::Centre
                        : shown & Qt::AlignRight ? Alignment::Right
                                                 : Alignment::Left);
      for (auto it = b.begin(); !it.atEnd(); ++it) {
        for (const char32_t c : it.fragment().text().toUcs4()) add(c, it.fragment().charFormat());
      }
      if (b.next().isValid()) add(U'\n', b.next().charFormat());
    }
    return description.Text();
  }
  void ExpectBothEqual() {
    view->Mirror();
    EXPECT_EQ(Shown(), Describe(box()));
    const std::u32string text = box().PlainText();
    const auto qt = [&](int position) {
      return static_cast<int>(
          QString::fromStdU32String(text.substr(0, static_cast<std::size_t>(position))).size());
    };
    EXPECT_EQ(view->Caret().selectionStart(), qt(box().SelStart()));
    EXPECT_EQ(view->Caret().selectionEnd(), qt(box().SelStart() + box().SelLength()));
  }

  QuietPlatform platform;
  SeededRandom random{1};
  Runtime runtime{platform, random,
                  [this](Screen) { return std::make_unique<SheetForm>(runtime); }};
  std::unique_ptr<RichTextView> view;
};

inline std::shared_ptr<const RichPicture> RedPicture() {
  QImage image(4, 2, QImage::Format_RGB32);
  image.fill(Qt::red);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return std::make_shared<RichPicture>(RichPicture{"png", bytes.toStdString(), 1440, 720});
}

inline void SetPlainClipboard(const QString& text) { QApplication::clipboard()->setText(text); }

// The texts of the lines as they are broken, each with a line end.
inline std::string Lines(const QTextDocument& document) {
  QString lines;
  document.documentLayout()->documentSize();  // lays out what is not yet

  for (QTextBlock b = document.begin(); b.isValid(); b = b.next()) {
    for (int i = 0; i < b.layout()->lineCount(); ++i) {
      const QTextLine line = b.layout()->lineAt(i);
      lines += b.text().mid(line.textStart(), line.textLength()).simplified() + u'\n';
    }
  }
  return lines.toStdString();
}

}  // namespace brindlepage

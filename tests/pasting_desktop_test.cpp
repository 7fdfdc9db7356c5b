// What other programs offer when something is copied in them, pasted into an open sheet.

#include <QClipboard>
#include <QMimeData>
#include <QUrl>

#include "tests/open_sheet.h"
#include "tests/temp_folder.h"

namespace brindlepage {
namespace {

class Pasting : public AnOpenSheet {
 protected:
  Pasting() {
    Compose([](RichTextBox& box) { box.SelText("ab"); });
    PutCaret(1);
  }

  void Paste(QMimeData* copied) {
    QApplication::clipboard()->setMimeData(copied);
    Key(Qt::Key_V, Qt::ControlModifier);
  }
  QUrl File(const char* name) const {
    return QUrl::fromLocalFile(QString::fromStdString((folder_.Path() / name).string()));
  }
  void ExpectThePicture() {
    ASSERT_EQ(box().PlainText(), U"a\uFFFCb");
    EXPECT_EQ(box().FormatAt(1).picture->width, 96 * 15);
    EXPECT_EQ(box().FormatAt(1).picture->height, 48 * 15);
  }

  TempFolder folder_;
};

QImage BluePicture() {
  QImage image(96, 48, QImage::Format_RGB32);
  image.fill(Qt::blue);
  return image;
}

TEST_F(Pasting, ThePictureOfAFileThatWasCopied) {
  ASSERT_TRUE(BluePicture().save(File("blue.png").toLocalFile()));
  auto* copied = new QMimeData;
  copied->setUrls({File("blue.png")});
  Paste(copied);
  ExpectThePicture();
}

TEST_F(Pasting, APictureThatComesWithTheAddressOfItsFile) {
  auto* copied = new QMimeData;
  copied->setUrls({File("gone.png")});
  copied->setImageData(BluePicture());
  Paste(copied);
  ExpectThePicture();
}

TEST_F(Pasting, NothingOfAFileThatIsNoPicture) {
  folder_.Write("notes.txt", "some notes");
  auto* copied = new QMimeData;
  copied->setUrls({File("notes.txt")});
  Paste(copied);
  EXPECT_EQ(BoxText(), "ab");
}

TEST_F(Pasting, TheWordsOfATextThatComesFormattedAlone) {
  auto* copied = new QMimeData;
  copied->setHtml("<p>one <b>bold</b></p><p>two</p>");
  Paste(copied);
  EXPECT_EQ(BoxText(), "aone bold\ntwob");
  EXPECT_FALSE(box().FormatAt(6).bold);
}

}  // namespace
}  // namespace brindlepage

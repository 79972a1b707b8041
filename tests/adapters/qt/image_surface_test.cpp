#include "adapters/qt/image_surface.h"

#include "support/error_number.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <vector>

namespace velmora {
namespace {

struct PictureFile : testing::Test {
    QTemporaryDir folder;
    ImageSurface pic;

    std::string write(const char* name, const QByteArray& bytes) const {
        const QString path = folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path.toStdString();
    }
    std::string save(const char* name, const QImage& picture, const char* format) const {
        const QString path = folder.filePath(name);
        EXPECT_TRUE(picture.save(path, format, 100)) << name;
        return path.toStdString();
    }
    int number_of_loading(const std::string& file) {
        return test::number_of([&] { pic.set_picture(file); });
    }
};

TEST_F(PictureFile, a_part_of_what_is_drawn_is_written_as_png) {
    pic.set_back_color(0xFFFFFF);
    pic.set_pen(255); // red
    pic.MoveToEx(12, 21);
    pic.LineTo(15, 21);
    const std::string file = write("view.png", "an older one");
    pic.save_part(file, {10, 20}, {30, 40});
    const QImage part(QString::fromStdString(file), "PNG");
    EXPECT_EQ(part.size(), QSize(30, 40));
    EXPECT_EQ(part.pixelColor(2, 1), QColor(255, 0, 0));
    EXPECT_EQ(part.pixelColor(4, 1), QColor(255, 0, 0));
    EXPECT_EQ(part.pixelColor(5, 1), QColor(255, 255, 255)) << "the end of a line is left out";
    EXPECT_EQ(part.pixelColor(29, 39), QColor(255, 255, 255));
}

TEST_F(PictureFile, what_lies_beyond_the_canvas_is_left_out) {
    const std::string file = folder.filePath("view.png").toStdString();
    pic.save_part(file, {-50, 1900}, {300, 300});
    EXPECT_EQ(QImage(QString::fromStdString(file)).size(), QSize(250, 100));
    EXPECT_EQ(test::number_of([&] {
                  pic.save_part(file, {2100, 0}, {10, 10});
              }),
              error::invalid_call);
}

TEST_F(PictureFile, a_folder_that_is_not_there_is_error75) {
    const std::string file = folder.filePath("none/view.png").toStdString();
    EXPECT_EQ(test::number_of([&] { pic.save_part(file, {0, 0}, {10, 10}); }), error::path_access);
}

QImage blue(int width, int height) {
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(QColor(0, 0, 254));
    return picture;
}

TEST(ImageSurface, is_two_thousand_pixels_square_and_shows_them_as_they_are) {
    ImageSurface pic;
    EXPECT_EQ(pic.Width(), 30000);
    EXPECT_EQ(pic.Height(), 30000);
    EXPECT_EQ(pic.image().size(), QSize(2000, 2000));
    EXPECT_EQ(pic.image().pixel(1999, 1999), 0xFFC8C8C8);
    pic.set_pen(0x0000FF);
    pic.Line(10, 20, 10, 20);
    EXPECT_EQ(pic.image().pixel(10, 20), 0xFFFF0000);
    EXPECT_EQ(pic.pixel(10, 20), 0xFF0000U);
}

TEST(ImageSurface, tells_the_rectangle_that_changed) {
    ImageSurface pic;
    std::vector<QRect> told;
    pic.changed = [&](const QRect& changed) {
        told.push_back(changed);
    };
    pic.Line(10, 20, 14, 25);
    EXPECT_TRUE(told.empty());
    pic.present();
    pic.present();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0], QRect(10, 20, 5, 6));
    pic.set_back_color(0);
    EXPECT_EQ(told.back(), QRect(0, 0, 2000, 2000));
}

TEST_F(PictureFile, of_each_kind_stands_at_the_corner) {
    const QByteArray gif =
        QByteArray::fromBase64("R0lGODlhAQABAIAAAAAA/gAAACwAAAAAAQABAAACAkQBADs=");
    for (const std::string& file :
         {save("a.bmp", blue(30, 20), "BMP"), save("a.png", blue(30, 20), "PNG"),
          save("a.jpg", blue(30, 20), "JPG"), save("a.ico", blue(32, 32), "ICO"),
          write("a.gif", gif), save("misnamed.gif", blue(30, 20), "BMP")}) {
        ASSERT_EQ(number_of_loading(file), 0) << file;
        EXPECT_NEAR(pic.pixel(0, 0) & 0xFF, 254, 2) << file;
        EXPECT_EQ(pic.pixel(40, 0), 0xC8C8C8U) << file;
    }
    pic.set_picture("");
    EXPECT_EQ(pic.pixel(0, 0), 0xC8C8C8U);
}

TEST_F(PictureFile, larger_than_the_canvas_is_cut) {
    QImage picture = blue(2100, 2200);
    picture.setPixel(1999, 1999, 0xFF00FF00);
    pic.set_picture(save("large.bmp", picture, "BMP"));
    EXPECT_EQ(pic.pixel(1999, 1999), 0x00FF00U);
    EXPECT_EQ(pic.pixel(1998, 1999), 0x0000FEU);
}

TEST_F(PictureFile, that_is_not_there_raises53) {
    EXPECT_EQ(number_of_loading(folder.filePath("none.bmp").toStdString()), error::file_not_found);
    EXPECT_EQ(number_of_loading(folder.path().toStdString()), error::file_not_found);
}

TEST_F(PictureFile, that_is_no_picture_raises481_and_the_old_one_stays) {
    pic.set_picture(save("a.bmp", blue(30, 20), "BMP"));
    EXPECT_EQ(number_of_loading(write("text.bmp", "not a picture")), error::invalid_picture);
    EXPECT_EQ(number_of_loading(write("empty.jpg", "")), error::invalid_picture);
    EXPECT_EQ(pic.pixel(0, 0), 0x0000FEU);
}

TEST_F(PictureFile, too_large_for_memory_raises7) {
    // The head of a picture of 30000 by 30000 pixels.
    const QByteArray png =
        QByteArray::fromBase64("iVBORw0KGgoAAAANSUhEUgAAdTAAAHUwCAIAAADpRW/tAAAAAElEQVQ1rwYe");
    EXPECT_EQ(number_of_loading(write("huge.png", png)), error::out_of_memory);
}

} // namespace
} // namespace velmora

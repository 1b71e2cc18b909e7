#include <QImage>
#include <QPixmap>
#include <cstdlib>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

#include "x11/preferences/ShellTest.h"

namespace quorvel::x11 {
namespace {

// A desktop whose pixels are half as wide as the ones that windows are measured in. Qt asks for that once, at its
// start, so this runs in a process of its own.
class ScaleTest : public ShellTest {
protected:
    ScaleTest() : isFirst(QApplication::instance() == nullptr) { setenv(variable, "2", 1); }
    ~ScaleTest() override { unsetenv(variable); }

    // The visible parts of the window that show what the models draw.
    std::vector<QWidget*> pictures() const
    {
        std::vector<QWidget*> found;
        for (auto* const widget : window->findChildren<QWidget*>()) {
            const std::string_view kind = typeid(*widget).name();
            const bool isPicture = kind.find("PreviewWidget") != kind.npos || kind.find("Thumbnail") != kind.npos;
            if (isPicture && widget->isVisible()) {
                found.push_back(widget);
            }
        }
        return found;
    }

    // Whether something within the picture's edge is finer than the pixels that windows are measured in.
    static bool isCrisp(const QImage& image)
    {
        constexpr int edge = 8;
        for (int y = edge; y < image.height() - edge; y += 2) {
            for (int x = edge; x < image.width() - edge; x += 2) {
                const auto pixel = image.pixel(x, y);
                if (pixel != image.pixel(x + 1, y) || pixel != image.pixel(x, y + 1)) {
                    return true;
                }
            }
        }
        return false;
    }

    const bool isFirst;

private:
    static constexpr auto variable = "QT_SCALE_FACTOR";
};

TEST_F(ScaleTest, PicturesHaveAllThePixelsOfAFineScreen)
{
    if (!isFirst) {
        GTEST_SKIP() << "needs a process of its own";
    }
    for (const std::string tab :
         {"Layout Appearance", "Window Switcher Appearance", "Move/Resize Appearance", "Layouts"}) {
        button(tab)->click();
        loop.waitFor("the pictures of " + tab, [&] { return !pictures().empty(); });
        for (auto* const picture : pictures()) {
            const QPixmap seen = picture->grab();
            EXPECT_EQ(seen.devicePixelRatioF(), 2.0) << tab;
            EXPECT_EQ(seen.size(), picture->size() * 2) << tab;
            EXPECT_TRUE(isCrisp(seen.toImage())) << tab;
        }
    }
}

} // namespace
} // namespace quorvel::x11

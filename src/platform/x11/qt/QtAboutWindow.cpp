#include "platform/x11/qt/QtAboutWindow.h"

#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>
#include <QWindow>

#include "platform/x11/qt/PaneMetrics.h"
#include "platform/x11/qt/QtText.h"
#include "platform/x11/qt/WindowShowing.h"

namespace quorvel::x11 {

QtAboutWindow::QtAboutWindow(const AboutContent& content, const ToolkitHost& host) : host(host)
{
    constexpr int imageSide = 128;
    constexpr double nameScale = 1.8;
    constexpr int innerMargin = 36;
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    setWindowTitle(text(content.windowTitle));
    const QIcon icon(text(host.imageFile(content.imageName, 2 * imageSide).string()));
    setWindowIcon(icon);

    auto* const image = new QLabel(this);
    image->setPixmap(icon.pixmap(QSize(imageSide, imageSide), devicePixelRatioF()));
    image->setAccessibleName(text(content.name));
    auto* const name = new QLabel(text(content.name), this);
    name->setFont(paneMetrics::titleFont(paneMetrics::scaled(name->font(), nameScale)));
    auto* const version = new QLabel(text(content.version), this);
    version->setForegroundRole(QPalette::PlaceholderText);

    auto* const box = new QVBoxLayout(this);
    box->setContentsMargins(innerMargin * 2, innerMargin, innerMargin * 2, innerMargin);
    box->setSpacing(paneMetrics::titleSpacing);
    box->setSizeConstraint(QLayout::SetFixedSize);
    for (auto* const label : {image, name, version}) {
        label->setAlignment(Qt::AlignCenter);
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
        box->addWidget(label);
    }
    adjustSize();
}

void QtAboutWindow::show()
{
    showInTheMiddle(*this, host);
}

void QtAboutWindow::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        windowHandle()->startSystemMove();
    }
}

void QtAboutWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Close) || event->matches(QKeySequence::Cancel)) {
        close();
    } else {
        QWidget::keyPressEvent(event);
    }
}

} // namespace quorvel::x11

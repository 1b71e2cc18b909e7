#pragma once

#include <QWidget>

#include "platform/AboutContent.h"
#include "platform/x11/desktop/ToolkitUi.h"

namespace quorvel::x11 {

// As large as its content; moves wherever it is grabbed.
class QtAboutWindow final : public QWidget, public ToolkitWindow {
public:
    QtAboutWindow(const AboutContent& content, const ToolkitHost& host);

    void show() override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    const ToolkitHost& host;
};

} // namespace quorvel::x11

#include <QApplication>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QWidget>

// A small window with a few controls: qt_client TITLE.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(argc > 1 ? argv[1] : "Qt");

    auto* form = new QFormLayout(&window);
    auto* name = new QLineEdit("Quarterly report");
    auto* copies = new QSpinBox;
    copies->setValue(2);
    auto* scale = new QSlider(Qt::Horizontal);
    scale->setValue(60);
    form->addRow("Name", name);
    form->addRow("Copies", copies);
    form->addRow("Scale", scale);
    form->addRow(new QPushButton("Print"));

    window.resize(480, 320);
    window.show();
    return QApplication::exec();
}

#include <QApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QTableWidget>
#include <QTextEdit>
#include <QVBoxLayout>
#include <QWidget>
#include <array>

namespace {

struct Task {
    const char* name;
    const char* owner;
    const char* due;
    int done; // percent
};

constexpr std::array<Task, 7> tasks = {{
    {"Agree on the route", "Mara", "Mon 3", 100},
    {"Book the night train", "Jonas", "Tue 4", 100},
    {"Find a place by the lake", "Mara", "Thu 6", 80},
    {"Pack the tent", "Emil", "Sat 8", 45},
    {"Print the maps", "Jonas", "Sun 9", 20},
    {"Charge the batteries", "Emil", "Sun 9", 0},
    {"Water the plants", "Ines", "Mon 10", 0},
}};

QTableWidgetItem* cell(const char* text)
{
    auto* item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    return item;
}

QWidget* taskTable()
{
    auto* table = new QTableWidget(static_cast<int>(tasks.size()), 4);
    table->setHorizontalHeaderLabels({"Task", "Who", "Until", "Done"});
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(34);
    table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    table->setFrameShape(QFrame::NoFrame);
    int row = 0;
    for (const Task& task : tasks) {
        table->setItem(row, 0, cell(task.name));
        table->setItem(row, 1, cell(task.owner));
        table->setItem(row, 2, cell(task.due));
        auto* progress = new QProgressBar;
        progress->setValue(task.done);
        progress->setTextVisible(false);
        progress->setFixedHeight(8);
        auto* holder = new QWidget;
        auto* line = new QHBoxLayout(holder);
        line->addWidget(progress);
        table->setCellWidget(row, 3, holder);
        ++row;
    }
    return table;
}

void showPlanner(QWidget& window)
{
    window.setWindowTitle("Lake trip");
    auto* column = new QVBoxLayout(&window);
    column->setContentsMargins(20, 18, 20, 18);
    auto* heading = new QLabel("Lake trip, 10 to 14 July");
    heading->setFont(QFont("Inter", 15, QFont::DemiBold));
    column->addWidget(heading);
    auto* summary = new QLabel("2 of 7 tasks done");
    summary->setForegroundRole(QPalette::PlaceholderText);
    column->addWidget(summary);
    column->addSpacing(8);
    column->addWidget(taskTable());
    window.resize(660, 430);
}

constexpr auto notes = R"(<h2>Letter to Ines</h2>
<p>Dear Ines,</p>
<p>the night train arrives at 6:40, and from the station it is an hour on foot along the shore. On the way there is a
bakery that opens at seven, so we shall have breakfast by the water.</p>
<p>Two things are still open:</p>
<ul><li>boat or bicycles for the second day,</li><li>whether we can stay until Friday.</li></ul>
<p>Jonas brings the good map. The new one lacks the northern path, which is the one with the view.</p>
<p>Until Monday, then, and do not forget the lamps.</p>
<p>Mara</p>)";

void showNotes(QWidget& window)
{
    window.setWindowTitle("Letter");
    auto* column = new QVBoxLayout(&window);
    column->setContentsMargins(0, 0, 0, 0);
    auto* text = new QTextEdit;
    text->setFrameShape(QFrame::NoFrame);
    text->document()->setDocumentMargin(28);
    text->setFont(QFont("Inter", 11));
    text->setHtml(notes);
    text->setReadOnly(true); // no blinking caret in the pictures
    column->addWidget(text);
    window.resize(640, 520);
}

} // namespace

// A window of the tour: sample_window planner|notes.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle("fusion");
    QApplication::setFont(QFont("Inter", 10));
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x2A, 0x2F, 0x37));
    palette.setColor(QPalette::Base, QColor(0x2A, 0x2F, 0x37));
    palette.setColor(QPalette::AlternateBase, QColor(0x30, 0x36, 0x3F));
    palette.setColor(QPalette::Button, QColor(0x38, 0x3F, 0x49));
    palette.setColor(QPalette::WindowText, QColor(0xE4, 0xE8, 0xED));
    palette.setColor(QPalette::Text, QColor(0xE4, 0xE8, 0xED));
    palette.setColor(QPalette::ButtonText, QColor(0xB8, 0xC0, 0xCA));
    palette.setColor(QPalette::PlaceholderText, QColor(0x94, 0x9E, 0xAB));
    palette.setColor(QPalette::Highlight, QColor(0x4F, 0x9D, 0xE0));
    QApplication::setPalette(palette);

    QWidget window;
    const bool isNotes = QApplication::arguments().value(1) == "notes";
    QApplication::setApplicationName(isNotes ? "Notes" : "Planner");
    if (isNotes) {
        showNotes(window);
    } else {
        showPlanner(window);
    }
    window.show();
    return QApplication::exec();
}

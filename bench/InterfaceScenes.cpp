#include "InterfaceScenes.h"

#include <QtWidgets>

namespace tembra::bench {

namespace {

QFont fixedFont(int pixelSize) {
    QFont font(QStringLiteral("DejaVu Sans Mono"));
    font.setPixelSize(pixelSize);
    return font;
}

QLabel *label(const QString &text, const QString &style = {}) {
    auto *const result = new QLabel(text);
    result->setStyleSheet(style);
    return result;
}

const QStringList &messageTexts(SceneLanguage language) {
    static const QStringList english{
        u"Do you want to save the changes you made to “Quarterly report.odt”?"_qs,
        u"Your changes will be lost if you don’t save them. The last version was saved 12 minutes ago."_qs,
        u"Don’t Save"_qs, u"Cancel"_qs, u"Save As…"_qs};
    static const QStringList german{
        u"Möchten Sie die Änderungen an „Übersicht für März.odt“ speichern?"_qs,
        u"Ihre Änderungen gehen verloren, wenn Sie sie nicht sichern. Zuletzt wurde vor 12 Minuten "
        u"gespeichert, größere Dateien brauchen länger."_qs,
        u"Nicht speichern"_qs, u"Abbrechen"_qs, u"Speichern unter…"_qs};
    static const QStringList russian{
        u"Сохранить изменения в документе «Отчёт за квартал.odt» перед закрытием?"_qs,
        u"Если вы не сохраните изменения, они будут потеряны. Последняя версия сохранена 12 минут назад."_qs,
        u"Не сохранять"_qs, u"Отмена"_qs, u"Сохранить как…"_qs};
    switch (language) {
    case SceneLanguage::german:
        return german;
    case SceneLanguage::russian:
        return russian;
    case SceneLanguage::english:
        break;
    }
    return english;
}

// Tabs, a group, its checkboxes, labelled fields, a hint, buttons.
const QStringList &settingsTexts(SceneLanguage language) {
    static const QStringList english{u"General"_qs,
                                     u"Appearance"_qs,
                                     u"Keyboard"_qs,
                                     u"Privacy"_qs,
                                     u"Start-up"_qs,
                                     u"Open at login"_qs,
                                     u"Show the icon in the notification area"_qs,
                                     u"Check for updates every week"_qs,
                                     u"Language:"_qs,
                                     u"English (United Kingdom)"_qs,
                                     u"Folder:"_qs,
                                     u"/home/anna/Pictures/Screenshots"_qs,
                                     u"Quality:"_qs,
                                     u"85 %"_qs,
                                     u"Changes take effect after a restart."_qs,
                                     u"Restore Defaults"_qs,
                                     u"Cancel"_qs,
                                     u"OK"_qs};
    static const QStringList german{u"Allgemein"_qs,
                                    u"Aussehen"_qs,
                                    u"Tastatur"_qs,
                                    u"Datenschutz"_qs,
                                    u"Systemstart"_qs,
                                    u"Beim Anmelden öffnen"_qs,
                                    u"Symbol im Benachrichtigungsfeld zeigen"_qs,
                                    u"Wöchentlich nach Aktualisierungen suchen"_qs,
                                    u"Sprache:"_qs,
                                    u"Deutsch (Österreich)"_qs,
                                    u"Ordner:"_qs,
                                    u"/home/jürgen/Bilder/Fotos"_qs,
                                    u"Qualität:"_qs,
                                    u"85 %"_qs,
                                    u"Wird erst nach einem Neustart übernommen."_qs,
                                    u"Zurücksetzen"_qs,
                                    u"Abbrechen"_qs,
                                    u"Schließen"_qs};
    static const QStringList russian{u"Общие"_qs,
                                     u"Внешний вид"_qs,
                                     u"Клавиатура"_qs,
                                     u"Защита"_qs,
                                     u"Запуск"_qs,
                                     u"Открывать при входе в систему"_qs,
                                     u"Показывать значок в области уведомлений"_qs,
                                     u"Проверять обновления каждую неделю"_qs,
                                     u"Язык:"_qs,
                                     u"Русский (Россия)"_qs,
                                     u"Папка:"_qs,
                                     u"Изображения и снимки экрана"_qs,
                                     u"Качество:"_qs,
                                     u"85 %"_qs,
                                     u"Изменения вступят в силу после перезапуска."_qs,
                                     u"По умолчанию"_qs,
                                     u"Отмена"_qs,
                                     u"Готово"_qs};
    switch (language) {
    case SceneLanguage::german:
        return german;
    case SceneLanguage::russian:
        return russian;
    case SceneLanguage::english:
        break;
    }
    return english;
}

const QStringList &articleTexts(SceneLanguage language) {
    static const QStringList english{
        u"How rivers find their way"_qs,
        u"Water takes the steepest path that it can find, and in doing so it changes the ground beneath it. "
        u"Over a few hundred years a small bend becomes a wide loop; the outer bank is worn away while sand "
        u"settles on the inner one."_qs,
        u"In 1963 a survey of 47 streams showed that the width of a loop is nearly always about eleven times "
        u"the width of the river. Nobody had expected such a simple rule (see page 218)."_qs,
        u"When two bends meet, the river cuts through and leaves a lake behind. From the air these lakes "
        u"look "
        u"like new moons, scattered over the plain."_qs};
    static const QStringList russian{
        u"Как реки находят свой путь"_qs,
        u"Вода выбирает самый крутой склон, который может найти, и при этом меняет землю под собой. За "
        u"несколько сотен лет небольшой изгиб превращается в широкую петлю."_qs,
        u"В 1963 году исследование 47 рек показало, что ширина петли почти всегда в одиннадцать раз больше "
        u"ширины русла. Никто не ожидал такого простого правила (страница 218)."_qs};
    return language == SceneLanguage::russian ? russian : english;
}

struct CodeColours {
    QColor paper, ink, keyword, string, comment, number;
};

class CodeHighlighter : public QSyntaxHighlighter {
public:
    CodeHighlighter(QTextDocument *document, const CodeColours &colours)
        : QSyntaxHighlighter(document), m_colours(colours) {}

protected:
    void highlightBlock(const QString &text) override {
        paint(text, QStringLiteral(R"(\b(def|return|for|in|if|not|import|from|class|while|None|with|as)\b)"),
              m_colours.keyword);
        paint(text, QStringLiteral(R"(\b\d+(\.\d+)?\b)"), m_colours.number);
        paint(text, QStringLiteral("\"[^\"]*\""), m_colours.string);
        paint(text, QStringLiteral("#.*$"), m_colours.comment);
    }

private:
    void paint(const QString &text, const QString &pattern, const QColor &colour) {
        for (auto at = QRegularExpression(pattern).globalMatch(text); at.hasNext();) {
            const auto match = at.next();
            setFormat(int(match.capturedStart()), int(match.capturedLength()), colour);
        }
    }

    CodeColours m_colours;
};

const QStringList &codeLines() {
    static const QStringList lines{u"from pathlib import Path"_qs,
                                   u""_qs,
                                   u"# Files that have grown since the last look."_qs,
                                   u"def grown_files(folder, known):"_qs,
                                   u"    result = []"_qs,
                                   u"    for path in sorted(Path(folder).glob(\"*.log\")):"_qs,
                                   u"        size = path.stat().st_size"_qs,
                                   u"        if size > known.get(path.name, 0):"_qs,
                                   u"            result.append((path, size - known[path.name]))"_qs,
                                   u"    return result[:100]"_qs,
                                   u""_qs,
                                   u"class Report:"_qs,
                                   u"    def __init__(self, title, limit=2048):"_qs,
                                   u"        self.title = title.strip()"_qs,
                                   u"        self.limit = limit * 1024"_qs,
                                   u""_qs,
                                   u"    def render(self, rows):"_qs,
                                   u"        with open(\"report.txt\", \"w\") as out:"_qs,
                                   u"            for row in rows:  # newest first"_qs,
                                   u"                out.write(f\"{row.name}: {row.size} bytes\\n\")"_qs,
                                   u"        return len(rows) != 0"_qs};
    return lines;
}

QStandardItemModel *modelOf(const QList<QStringList> &rows, QObject *parent) {
    auto *const model = new QStandardItemModel(parent);
    model->setHorizontalHeaderLabels(rows.front());
    for (const QStringList &row : rows.sliced(1)) {
        QList<QStandardItem *> items;
        for (const QString &text : row)
            items += new QStandardItem(text);
        model->appendRow(items);
    }
    return model;
}

QStringList textsOf(const QList<QStringList> &rows) {
    QStringList texts;
    for (const QStringList &row : rows)
        texts += row.join(u' ');
    return texts;
}

} // namespace

InterfaceScene messageBox(SceneLanguage language) {
    const QStringList &texts = messageTexts(language);
    auto box = std::make_unique<QDialog>();
    box->setFixedWidth(470);
    auto *const icon = new QLabel;
    icon->setPixmap(box->style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(40, 40));
    auto *const title = label(texts[0], QStringLiteral("font-weight: bold"));
    auto *const detail = label(texts[1]);
    title->setWordWrap(true);
    detail->setWordWrap(true);
    auto *const buttons = new QHBoxLayout;
    buttons->addStretch();
    for (const QString &text : texts.sliced(2))
        buttons->addWidget(new QPushButton(text));
    auto *const grid = new QGridLayout(box.get());
    grid->addWidget(icon, 0, 0, 2, 1, Qt::AlignTop);
    grid->addWidget(title, 0, 1);
    grid->addWidget(detail, 1, 1);
    grid->addLayout(buttons, 2, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    return {std::move(box), texts};
}

InterfaceScene settingsDialog(SceneLanguage language) {
    const QStringList &texts = settingsTexts(language);
    auto dialog = std::make_unique<QDialog>();
    dialog->setFixedSize(520, 420);
    auto *const page = new QWidget;
    auto *const group = new QGroupBox(texts[4]);
    auto *const checks = new QVBoxLayout(group);
    for (int i = 5; i < 8; ++i) {
        auto *const check = new QCheckBox(texts[i]);
        check->setChecked(i != 6);
        checks->addWidget(check);
    }
    auto *const form = new QFormLayout;
    auto *const choice = new QComboBox;
    choice->addItem(texts[9]);
    form->addRow(texts[8], choice);
    form->addRow(texts[10], new QLineEdit(texts[11]));
    auto *const quality = new QSpinBox;
    quality->setSuffix(QStringLiteral(" %"));
    quality->setValue(85);
    form->addRow(texts[12], quality);
    auto *const column = new QVBoxLayout(page);
    column->addWidget(group);
    column->addLayout(form);
    column->addWidget(label(texts[14], QStringLiteral("color: #808080; font-size: 11px")));
    column->addStretch();
    auto *const tabs = new QTabWidget;
    tabs->addTab(page, texts[0]);
    for (int i = 1; i < 4; ++i)
        tabs->addTab(new QWidget, texts[i]);
    auto *const buttons = new QHBoxLayout;
    buttons->addWidget(new QPushButton(texts[15]));
    buttons->addStretch();
    buttons->addWidget(new QPushButton(texts[16]));
    auto *const ok = new QPushButton(texts[17]);
    ok->setDefault(true);
    buttons->addWidget(ok);
    auto *const layout = new QVBoxLayout(dialog.get());
    layout->addWidget(tabs);
    layout->addLayout(buttons);
    return {std::move(dialog), texts};
}

InterfaceScene menus() {
    auto window = std::make_unique<QMainWindow>();
    window->setFixedSize(560, 400);
    const QStringList bar{u"File"_qs, u"Edit"_qs, u"View"_qs, u"Bookmarks"_qs, u"Tools"_qs, u"Help"_qs};
    for (const QString &text : bar)
        window->menuBar()->addMenu(text);
    const QList<QStringList> entries{{u"New Window"_qs, u"Ctrl+N"_qs},
                                     {u"New Private Window"_qs, u"Ctrl+Shift+P"_qs},
                                     {u"Open File…"_qs, u"Ctrl+O"_qs},
                                     {u"Save Page As…"_qs, u"Ctrl+S"_qs},
                                     {u"Print Preview"_qs, u"Alt+F7"_qs},
                                     {u"Import From Another Browser…"_qs, {}},
                                     {u"Work Offline"_qs, {}},
                                     {u"Quit"_qs, u"Ctrl+Q"_qs}};
    QStringList texts{bar.join(u' ')};
    auto *const menu = new QMenu(window.get());
    for (const QStringList &entry : entries) {
        QAction *const action = menu->addAction(entry[0]);
        action->setShortcut(QKeySequence(entry[1]));
        texts += entry.join(u' ').trimmed();
    }
    menu->setWindowFlags(Qt::Widget);
    menu->setParent(window.get());
    menu->move(6, window->menuBar()->sizeHint().height());
    menu->resize(menu->sizeHint());
    menu->setVisible(true);
    const QString status = u"Ready – 3 items selected"_qs;
    window->statusBar()->showMessage(status);
    return {std::move(window), texts + QStringList{status}};
}

InterfaceScene sourceCode(bool isDark) {
    const CodeColours light{Qt::white,         QColor(36, 41, 46),    QColor(215, 58, 73),
                            QColor(3, 47, 98), QColor(106, 115, 125), QColor(0, 92, 197)};
    const CodeColours dark{QColor(30, 30, 30),    QColor(212, 212, 212), QColor(86, 156, 214),
                           QColor(206, 145, 120), QColor(106, 153, 85),  QColor(181, 206, 168)};
    const CodeColours &colours = isDark ? dark : light;
    auto editor = std::make_unique<QPlainTextEdit>(codeLines().join(u'\n'));
    QPalette palette = editor->palette();
    palette.setColor(QPalette::Base, colours.paper);
    palette.setColor(QPalette::Text, colours.ink);
    editor->setPalette(palette);
    editor->setFont(fixedFont(14));
    new CodeHighlighter(editor->document(), colours);
    editor->setFixedSize(640, 400);
    return {std::move(editor), codeLines()};
}

InterfaceScene invoiceTable() {
    const QList<QStringList> rows{
        {u"Number"_qs, u"Customer"_qs, u"Date"_qs, u"Amount"_qs, u"Status"_qs},
        {u"10482"_qs, u"Harbour Bakery"_qs, u"2024-03-18"_qs, u"€ 1,204.50"_qs, u"Paid"_qs},
        {u"10483"_qs, u"North Wind Cycles"_qs, u"2024-03-19"_qs, u"€ 86.00"_qs, u"Open"_qs},
        {u"10484"_qs, u"Jane Whitfield"_qs, u"2024-03-21"_qs, u"€ 310.25"_qs, u"Overdue"_qs},
        {u"10485"_qs, u"Lakeside School"_qs, u"2024-03-22"_qs, u"€ 4,950.00"_qs, u"Paid"_qs},
        {u"10486"_qs, u"Orchard & Sons"_qs, u"2024-03-22"_qs, u"€ 77.10"_qs, u"Draft"_qs},
        {u"10487"_qs, u"Green Valley Farm"_qs, u"2024-03-25"_qs, u"€ 629.99"_qs, u"Open"_qs},
        {u"10488"_qs, u"City Museum"_qs, u"2024-03-27"_qs, u"€ 12,000.00"_qs, u"Paid"_qs},
        {u"10489"_qs, u"Blue Door Hotel"_qs, u"2024-03-28"_qs, u"€ 415.40"_qs, u"Sent"_qs}};
    auto table = std::make_unique<QTableView>();
    table->setModel(modelOf(rows, table.get()));
    table->verticalHeader()->hide();
    table->setAlternatingRowColors(true);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->selectRow(3);
    table->setFixedSize(700, 310);
    return {std::move(table), textsOf(rows)};
}

InterfaceScene fileTree() {
    const QList<QStringList> rows{{u"Name"_qs, u"Size"_qs, u"Modified"_qs},
                                  {u"Documents"_qs, u"14 items"_qs, u"Yesterday"_qs},
                                  {u"Downloads"_qs, u"203 items"_qs, u"Today"_qs},
                                  {u"budget-2024.xlsx"_qs, u"48.2 kB"_qs, u"11 Mar 2024"_qs},
                                  {u"holiday_photo_0017.jpg"_qs, u"3.6 MB"_qs, u"2 Jan 2024"_qs},
                                  {u"letter to the bank.pdf"_qs, u"112 kB"_qs, u"27 Feb 2024"_qs},
                                  {u"Makefile"_qs, u"1.9 kB"_qs, u"9 Nov 2023"_qs},
                                  {u"notes.txt"_qs, u"734 bytes"_qs, u"Today"_qs},
                                  {u"backup.tar.gz"_qs, u"1.2 GB"_qs, u"30 Dec 2023"_qs}};
    auto tree = std::make_unique<QTreeView>();
    auto *const model = modelOf(rows, tree.get());
    for (int i = 0; i < model->rowCount(); ++i)
        model->item(i)->setIcon(
            tree->style()->standardIcon(i < 2 ? QStyle::SP_DirIcon : QStyle::SP_FileIcon));
    tree->setModel(model);
    tree->setColumnWidth(0, 240);
    tree->setCurrentIndex(model->index(2, 0));
    tree->setFixedSize(520, 250);
    return {std::move(tree), textsOf(rows)};
}

InterfaceScene terminal() {
    const QList<std::pair<QString, QString>> lines{
        {u"anna@desk:~/src/weather$ git status --short"_qs, u"#d0d0d0"_qs},
        {u" M forecast/model.py"_qs, u"#e06c75"_qs},
        {u"?? tests/data/station-12.csv"_qs, u"#e06c75"_qs},
        {u"anna@desk:~/src/weather$ make test"_qs, u"#d0d0d0"_qs},
        {u"Running 148 tests in 12 files"_qs, u"#98c379"_qs},
        {u"test_wind_speed ... ok"_qs, u"#d0d0d0"_qs},
        {u"test_missing_values ... FAILED"_qs, u"#e06c75"_qs},
        {u"  expected 21.5 but found 20.9 at line 67"_qs, u"#d0d0d0"_qs},
        {u"warning: station 12 has no data before 1998-04-01"_qs, u"#e5c07b"_qs},
        {u"147 passed, 1 failed in 3.28s"_qs, u"#61afef"_qs},
        {u"anna@desk:~/src/weather$ ls -l"_qs, u"#d0d0d0"_qs},
        {u"drwxr-xr-x 2 anna users  4096 Mar 14 09:21 forecast"_qs, u"#61afef"_qs},
        {u"-rw-r--r-- 1 anna users 15377 Mar 12 18:40 README.md"_qs, u"#d0d0d0"_qs},
        {u"-rwxr-xr-x 1 anna users   862 Feb 28 11:05 update.sh"_qs, u"#98c379"_qs}};
    auto view = std::make_unique<QPlainTextEdit>();
    QPalette palette = view->palette();
    palette.setColor(QPalette::Base, QColor(16, 16, 20));
    view->setPalette(palette);
    view->setFont(fixedFont(13));
    QStringList texts;
    for (const auto &[text, colour] : lines) {
        view->appendHtml(u"<pre style=\"color: %1\">%2</pre>"_qs.arg(colour, text.toHtmlEscaped()));
        texts += text;
    }
    view->setFixedSize(560, 290);
    return {std::move(view), texts};
}

InterfaceScene article(SceneLanguage language) {
    const QStringList &texts = articleTexts(language);
    auto view = std::make_unique<QTextBrowser>();
    QString html = u"<h2>%1</h2>"_qs.arg(texts[0]);
    for (const QString &paragraph : texts.sliced(1))
        html += u"<p style=\"line-height: 140%\">%1</p>"_qs.arg(paragraph);
    view->setHtml(html);
    view->setFixedSize(560, 360);
    return {std::move(view), texts};
}

InterfaceScene issueList() {
    struct Issue {
        QString title, badge, colour, hint;
    };
    const QList<Issue> issues{{u"Window forgets its size on the second screen"_qs, u"bug"_qs, u"#d73a4a"_qs,
                               u"#1843 opened 2 days ago by tomas"_qs},
                              {u"Add a search field to the list of devices"_qs, u"enhancement"_qs,
                               u"#1f883d"_qs, u"#1839 opened last week by mira-k"_qs},
                              {u"Crash when the network cable is unplugged"_qs, u"critical"_qs, u"#8250df"_qs,
                               u"#1827 opened on 4 March by dw1994"_qs},
                              {u"Translate the tutorial into Portuguese"_qs, u"documentation"_qs,
                               u"#0969da"_qs, u"#1815 opened on 1 March by luisa"_qs},
                              {u"Battery level is shown twice"_qs, u"good first issue"_qs, u"#bf8700"_qs,
                               u"#1802 opened on 23 February by sven"_qs}};
    auto page = std::make_unique<QWidget>();
    page->setFixedSize(620, 400);
    auto *const column = new QVBoxLayout(page.get());
    column->setContentsMargins(0, 0, 0, 12);
    auto *const head = label(u"weather / station   Issues 27   Pull requests 4   Settings"_qs,
                             u"background: #24292f; color: #f0f3f6; padding: 14px; font-size: 14px"_qs);
    column->addWidget(head);
    QStringList texts{head->text()};
    for (const Issue &issue : issues) {
        auto *const row = new QHBoxLayout;
        row->setContentsMargins(16, 2, 16, 0);
        row->addWidget(label(issue.title, u"font-weight: bold; font-size: 14px"_qs));
        row->addWidget(label(issue.badge, u"background: %1; color: white; border-radius: 9px; "
                                          u"padding: 2px 8px; font-size: 11px"_qs.arg(issue.colour)));
        row->addStretch();
        column->addLayout(row);
        auto *const hint = label(issue.hint, u"color: #8b949e; font-size: 11px; margin-left: 14px"_qs);
        column->addWidget(hint);
        texts += {issue.title + u' ' + issue.badge, issue.hint};
    }
    column->addStretch();
    return {std::move(page), texts};
}

InterfaceScene paleForm() {
    auto page = std::make_unique<QWidget>();
    page->setFixedSize(420, 300);
    auto *const column = new QVBoxLayout(page.get());
    column->setContentsMargins(24, 20, 24, 20);
    QStringList texts;
    const auto add = [&](const QString &text, const QString &style) {
        column->addWidget(label(text, style));
        texts += text;
    };
    add(u"Create your account"_qs, u"font-size: 20px; color: #57606a"_qs);
    add(u"It takes less than a minute and costs nothing."_qs, u"color: #afb8c1; font-size: 12px"_qs);
    for (const QString &hint :
         {u"First and last name"_qs, u"Email address"_qs, u"At least eight characters"_qs}) {
        auto *const field = new QLineEdit;
        field->setPlaceholderText(hint);
        column->addWidget(field);
        texts += hint;
    }
    add(u"We never share your address with others."_qs, u"color: #9aa4ae; font-size: 11px"_qs);
    auto *const button = new QPushButton(u"Continue"_qs);
    button->setEnabled(false);
    column->addWidget(button);
    texts += button->text();
    return {std::move(page), texts};
}

InterfaceScene chat() {
    const QStringList messages{u"Are you coming to the market on Saturday?"_qs,
                               u"Yes, around half past nine.\nShall I bring the big basket?"_qs,
                               u"Please do! And the list is in the kitchen."_qs,
                               u"Found it. 3 kg of apples?"_qs, u"Better 5, my sister wants to bake."_qs};
    auto page = std::make_unique<QWidget>();
    page->setFixedSize(480, 330);
    auto *const column = new QVBoxLayout(page.get());
    column->setSpacing(12);
    for (int i = 0; i < messages.size(); ++i) {
        auto *const bubble =
            label(messages[i],
                  i % 2 == 0 ? u"background: #e9e9eb; color: black; border-radius: 12px; padding: 8px"_qs
                             : u"background: #0a84ff; color: white; border-radius: 12px; padding: 8px"_qs);
        column->addWidget(bubble, 0, i % 2 == 0 ? Qt::AlignLeft : Qt::AlignRight);
    }
    column->addStretch();
    return {std::move(page), messages};
}

InterfaceScene label() {
    auto widget = std::make_unique<QLabel>(u"Remember me"_qs);
    widget->setFixedSize(90, 20);
    return {std::move(widget), {u"Remember me"_qs}};
}

} // namespace tembra::bench

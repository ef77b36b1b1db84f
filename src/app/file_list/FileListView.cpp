#include "app/file_list/FileListView.h"

#include "formats/icon_marker.h"
#include "helpers/twips.h"
#include "project/components.h"
#include "ui/controls/character_widths.h"
#include "ui/qt_text.h"

#include <QtWidgets>

namespace quillon {

namespace {

// The widths of the columns are twips of a font 13 pixels high; they grow with the user's font.
constexpr int kFontOfTwips = 13;

// The columns that are not always shown.
constexpr int kComponentWidth = 320;
constexpr int kLessForComponents = 350; // taken from the destination's width
constexpr int kSourceWidth = 4200;

// A longer name is cut, so that the other columns keep their room; a tool tip shows it whole.
constexpr int kMaxNameLetters = 45;

constexpr double kUsualDpi = 96;

// The longest text of a column whose texts all have one length: in a wide font the width in twips
// is too small for it.
QString WidestText(Column column)
{
    switch (column) {
    case Date:
        return "2004-12-30";
    case Time:
        return "12:30";
    case IconMarker:
        return kIconMarkerDesktop;
    default:
        return {};
    }
}

// Rows a little higher than their text are easier to follow.
class RowDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width(), size.height() + option.fontMetrics.height() / 3};
    }
};

constexpr const char* kHintOfEmptyList =
    "Fillistan är tom.\n\nDra hit filer och kataloger, eller välj Addera filer.";

} // namespace

FileListView::FileListView(const Project& project, quillon::Settings& settings)
    : project_(project), settings_(settings), model_(project.Files)
{
    setObjectName("ListViewFiles");
    setAccessibleName("Fillista");
    setModel(&model_);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTextElideMode(Qt::ElideMiddle);
    // Files are dropped on the page, of which the list is a part.
    setAcceptDrops(false);
    viewport()->setAcceptDrops(false);
    setItemDelegate(new RowDelegate(this));
    MakeHeader();
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (onSelection)
            onSelection();
    });
    connect(this, &QTreeView::doubleClicked, this, [this] {
        if (onDoubleClick)
            onDoubleClick();
    });
}

void FileListView::MakeHeader()
{
    header()->setSectionsMovable(false);
    header()->setSectionsClickable(true);
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(8);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int section) {
        if (onColumnClick)
            onColumnClick(Text(kListColumns[static_cast<std::size_t>(section)].header));
    });
    connect(header(), &QHeaderView::sectionResized, this,
            [this](int section, int, int width) { NoteWidth(section, width); });
}

void FileListView::ShowRows(const std::vector<std::size_t>& selectedRows)
{
    const int current = currentIndex().row();
    {
        // One change for the user, not two.
        const QSignalBlocker quiet(selectionModel());
        model_.ShowRows();
        const int last = model_.rowCount() - 1;
        const int row =
            selectedRows.empty() ? std::min(current, last) : static_cast<int>(selectedRows.front());
        if (row >= 0)
            selectionModel()->setCurrentIndex(model_.index(row, 0), QItemSelectionModel::NoUpdate);
        SelectRows(selectedRows);
    }
    const int widestBefore = widestName_;
    MeasureNames();
    if (widestName_ != widestBefore)
        ArrangeColumns();
    viewport()->update();
    setAccessibleDescription(QString::fromUtf8(model_.rowCount() == 0 ? kHintOfEmptyList : ""));
    if (!selectedRows.empty())
        scrollTo(currentIndex());
    ShowSortIndicator();
}

void FileListView::SelectRows(const std::vector<std::size_t>& rows)
{
    QItemSelection selection;
    for (std::size_t i = 0; i < rows.size();) {
        // Rows that follow each other are one range.
        std::size_t end = i + 1;
        while (end < rows.size() && rows[end] == rows[end - 1] + 1)
            ++end;
        selection.append(
            QItemSelectionRange(model_.index(static_cast<int>(rows[i]), 0),
                                model_.index(static_cast<int>(rows[end - 1]), kColumnCount - 1)));
        i = end;
    }
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

std::vector<std::size_t> FileListView::SelectedRows() const
{
    std::vector<bool> isSelected(static_cast<std::size_t>(model_.rowCount()));
    for (const QItemSelectionRange& range : selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row)
            isSelected[static_cast<std::size_t>(row)] = true;
    std::vector<std::size_t> rows;
    for (std::size_t row = 0; row < isSelected.size(); ++row)
        if (isSelected[row])
            rows.push_back(row);
    return rows;
}

std::size_t FileListView::SelectedRowCount() const
{
    return SelectedRows().size();
}

void FileListView::ShowSettings()
{
    ArrangeColumns();
    viewport()->update();
}

void FileListView::ShowComponentColumns()
{
    ArrangeColumns();
}

void FileListView::ArrangeColumns()
{
    isArranging_ = true;
    for (const ListColumn& column : kListColumns) {
        const int section = static_cast<int>(column.column);
        setColumnHidden(section, !IsShown(column.column));
        if (IsShown(column.column) && column.column != Destination)
            header()->resizeSection(section, WidthOf(column));
    }
    // The others come first, since this one takes what they leave.
    header()->resizeSection(Destination, WidthOf(kListColumns[Destination]));
    isArranging_ = false;
}

bool FileListView::IsShown(Column column) const
{
    if (column == ComponentNumber)
        return IsAnyComponentInUse(project_);
    if (column == Source)
        return settings_.ListOptions.ShowAlsoSourcePathInFileList != kOff;
    return kListColumns[column].width > 0;
}

int FileListView::WidthOf(const ListColumn& column) const
{
    const ColumnWidths widths = ReadColumnWidths(settings_.WindowPlace.ColumnWidths);
    if (const auto set = widths.find(column.column); set != widths.end())
        return static_cast<int>(std::lround(set->second * logicalDpiX() / kUsualDpi));
    switch (column.column) {
    case Filename:
        return NameWidth(std::max(Pixels(column.width), MinWidth(column)));
    case Destination:
        return DestinationWidth();
    case ComponentNumber:
        return Pixels(kComponentWidth);
    case Source:
        return Pixels(kSourceWidth);
    default:
        return std::max(Pixels(column.width), MinWidth(column));
    }
}

int FileListView::MinWidth(const ListColumn& column) const
{
    const int margin = 2 * (style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header()) +
                            style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this));
    return margin + std::max(header()->fontMetrics().horizontalAdvance(ToQt(column.header)),
                             fontMetrics().horizontalAdvance(WidestText(column.column)));
}

int FileListView::NameWidth(int minWidth) const
{
    const int maxWidth =
        std::min(kMaxNameLetters * fontMetrics().averageCharWidth(), viewport()->width() / 2);
    return std::max(minWidth, std::min(widestName_, maxWidth));
}

void FileListView::MeasureNames()
{
    CharacterWidths widths(font());
    int widest = 0;
    for (const FileListRow& row : project_.Files.rows)
        widest = std::max(widest, widths.WidthOf(row[Filename]));
    // What a cell keeps free beside its text.
    const int margin = 2 * (style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1);
    widestName_ = widest + margin;
}

// A large window has room for long destinations, so the column takes what the others leave.
int FileListView::DestinationWidth() const
{
    int left = viewport()->width();
    for (const ListColumn& column : kListColumns)
        if (column.column != Destination && column.column != ComponentNumber &&
            IsShown(column.column))
            left -= WidthOf(column);
    const int base = std::max(left, Pixels(kListColumns[Destination].width));
    return base - (IsShown(ComponentNumber) ? Pixels(kLessForComponents) : 0);
}

int FileListView::Pixels(int twips) const
{
    return twips * fontMetrics().height() / (kTwipsPerPixel * kFontOfTwips);
}

void FileListView::NoteWidth(int section, int width)
{
    // Hiding a column counts as a width of 0.
    if (isArranging_ || width == 0)
        return;
    Text& kept = settings_.WindowPlace.ColumnWidths;
    ColumnWidths widths = ReadColumnWidths(kept);
    widths[static_cast<Column>(section)] =
        static_cast<int>(std::lround(width * kUsualDpi / logicalDpiX()));
    kept = ColumnWidthsText(widths);
}

void FileListView::ShowSortIndicator()
{
    const FileList& files = project_.Files;
    header()->setSortIndicatorShown(files.sorted);
    header()->setSortIndicator(static_cast<int>(files.sortKey),
                               files.sortDescending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

void FileListView::drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                           const QModelIndex& index) const
{
    QTreeView::drawRow(painter, option, index);
    if (settings_.ListOptions.ShowGridLinesInFileList == kOff)
        return;
    painter->save();
    painter->setPen(palette().color(QPalette::Midlight));
    painter->drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    for (int section = 0; section < header()->count(); ++section) {
        const int edge =
            header()->sectionViewportPosition(section) + header()->sectionSize(section) - 1;
        if (!header()->isSectionHidden(section))
            painter->drawLine(edge, option.rect.top(), edge, option.rect.bottom());
    }
    painter->restore();
}

void FileListView::paintEvent(QPaintEvent* event)
{
    QTreeView::paintEvent(event);
    if (model_.rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const int margin = fontMetrics().height();
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin),
                     Qt::AlignCenter | Qt::TextWordWrap, QString::fromUtf8(kHintOfEmptyList));
}

void FileListView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy) && onCopy)
        onCopy();
    else if (event->matches(QKeySequence::Paste) && onPaste)
        onPaste();
    else
        QTreeView::keyPressEvent(event);
}

std::vector<Column> FileListView::ShownColumns() const
{
    std::vector<Column> columns;
    for (const ListColumn& column : kListColumns)
        if (IsShown(column.column))
            columns.push_back(column.column);
    return columns;
}

// Qt looks for what is typed in the column that was clicked last.
void FileListView::keyboardSearch(const QString& typed)
{
    if (currentIndex().isValid() && currentIndex().column() != Filename)
        selectionModel()->setCurrentIndex(currentIndex().siblingAtColumn(Filename),
                                          QItemSelectionModel::NoUpdate);
    QTreeView::keyboardSearch(typed);
}

void FileListView::changeEvent(QEvent* event)
{
    QTreeView::changeEvent(event);
    if (event->type() != QEvent::FontChange)
        return;
    MeasureNames();
    ArrangeColumns();
}

void FileListView::mouseReleaseEvent(QMouseEvent* event)
{
    QTreeView::mouseReleaseEvent(event);
    if (event->button() == Qt::RightButton && onPopup)
        onPopup(event->globalPosition().toPoint());
}

// Systems differ in when they ask for a menu by mouse; here it comes with the button's release, so
// only the menu key is left.
void FileListView::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    if (event->reason() != QContextMenuEvent::Keyboard || !onPopup)
        return;
    const QRect row = visualRect(currentIndex());
    const bool isInView = row.isValid() && viewport()->rect().contains(row.center());
    onPopup(viewport()->mapToGlobal(isInView ? row.center() : viewport()->rect().center()));
}

void FileListView::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    ArrangeColumns();
}

} // namespace quillon

#include "shell/test_ordering_dialog.h"

#include "core/program_state.h"
#include "shell/ok_cancel_buttons.h"

#include <QDialogButtonBox>
#include <QDropEvent>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>
#include <QVBoxLayout>

namespace zolt::shell {
namespace {

constexpr int kStationRole = Qt::UserRole;     // index of the station
constexpr int kNetlistRole = Qt::UserRole + 1; // index under the station, -1 on a station

QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

// The pattern's icon: its number on a colour of its own; General's is grey.
QIcon patternIcon(int pattern) {
    QPixmap pixmap(18, 18);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor colour =
        pattern == 0 ? QColor(Qt::gray) : QColor::fromHsv((pattern * 47) % 360, 160, 210);
    painter.setBrush(colour);
    painter.setPen(colour.darker());
    painter.drawRoundedRect(1, 1, 16, 16, 3, 3);
    QFont font = painter.font();
    font.setPixelSize(pattern < 10 ? 11 : 9);
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(Qt::black);
    painter.drawText(pixmap.rect(), Qt::AlignCenter, QString::number(pattern));
    return QIcon(pixmap);
}

// NetlistOnly, NetlistDescribed, and each with "+" for part of MAIN.
QIcon netlistIcon(const std::string& image) {
    QPixmap pixmap(18, 18);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(Qt::darkBlue);
    painter.setBrush(Qt::white);
    painter.drawRect(3, 2, 11, 14);
    if (image.rfind("NetlistDescribed", 0) == 0)
        for (int y = 5; y <= 12; y += 3)
            painter.drawLine(5, y, 12, y);
    if (!image.empty() && image.back() == '+') {
        painter.setPen(QPen(Qt::darkGreen, 2));
        painter.drawLine(11, 13, 17, 13);
        painter.drawLine(14, 10, 14, 16);
    }
    return QIcon(pixmap);
}

} // namespace

void AssemblyTree::dropEvent(QDropEvent* event) {
    QTreeWidgetItem* target = itemAt(event->position().toPoint());
    QTreeWidgetItem* dragged = currentItem();
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
    if (dragged && target && dragged != target)
        emit dropped(dragged, target);
}

TestOrderingDialog::TestOrderingDialog(ProgramState& state, QWidget* parent)
    : QDialog(parent), state_(state), ordering_(TestOrdering::Load(state)),
      tree_(new AssemblyTree(this)) {
    setObjectName(QStringLiteral("dlgTestOrdering"));
    setWindowTitle(QStringLiteral("Assembly Order"));
    tree_->setObjectName(QStringLiteral("TreeView1"));
    tree_->setHeaderHidden(true);
    tree_->setDragDropMode(QAbstractItemView::InternalMove);
    tree_->setEditTriggers(QAbstractItemView::EditKeyPressed);
    tree_->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(tree_, &QWidget::customContextMenuRequested, this, &TestOrderingDialog::showMenu);
    connect(tree_, &QTreeWidget::itemChanged, this, &TestOrderingDialog::labelEdited);
    connect(tree_, &AssemblyTree::dropped, this, &TestOrderingDialog::Drop);
    auto* box = OkCancelButtons(*this);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(tree_);
    layout->addWidget(box);
    resize(420, 480);
    rebuild();
    select(0);
}

void TestOrderingDialog::rebuild() {
    building_ = true;
    tree_->clear();
    const auto& stations = ordering_.Stations();
    for (std::size_t s = 0; s < stations.size(); ++s) {
        auto* station = new QTreeWidgetItem(tree_, {qs(stations[s].Name)});
        station->setIcon(0, patternIcon(stations[s].Pattern));
        station->setData(0, kStationRole, static_cast<int>(s));
        station->setData(0, kNetlistRole, -1);
        station->setToolTip(0, qs(TestOrdering::StationImage(stations[s])));
        Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDropEnabled;
        if (s > 0)
            flags |= Qt::ItemIsEditable | Qt::ItemIsDragEnabled;
        station->setFlags(flags);
        for (std::size_t n = 0; n < stations[s].Netlists.size(); ++n) {
            const OrderedNetlist& netlist = stations[s].Netlists[n];
            auto* item = new QTreeWidgetItem(station, {qs(TestOrdering::NetlistText(netlist))});
            item->setIcon(0, netlistIcon(TestOrdering::NetlistImage(netlist)));
            item->setData(0, kStationRole, static_cast<int>(s));
            item->setData(0, kNetlistRole, static_cast<int>(n));
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled |
                           Qt::ItemIsDropEnabled);
        }
        station->setExpanded(true);
    }
    building_ = false;
}

void TestOrderingDialog::changed() {
    state_.SetDirty(true);
    rebuild();
}

void TestOrderingDialog::select(std::size_t station, std::optional<std::size_t> netlist) {
    QTreeWidgetItem* item = tree_->topLevelItem(static_cast<int>(station));
    if (item && netlist)
        item = item->child(static_cast<int>(*netlist));
    if (item)
        tree_->setCurrentItem(item);
}

std::optional<std::size_t> TestOrderingDialog::selectedStation() const {
    const QTreeWidgetItem* item = tree_->currentItem();
    if (!item)
        return std::nullopt;
    return static_cast<std::size_t>(item->data(0, kStationRole).toInt());
}

std::string TestOrderingDialog::selectedNetlist() const {
    const QTreeWidgetItem* item = tree_->currentItem();
    if (!item || item->data(0, kNetlistRole).toInt() < 0)
        return {};
    const auto& station =
        ordering_.Stations()[static_cast<std::size_t>(item->data(0, kStationRole).toInt())];
    return station.Netlists[static_cast<std::size_t>(item->data(0, kNetlistRole).toInt())].Name;
}

void TestOrderingDialog::showMenu(const QPoint& at) {
    const auto station = selectedStation();
    if (!station)
        return;
    const bool onNetlist = !selectedNetlist().empty();
    QMenu menu(this);
    menu.addAction(QStringLiteral("Edit &Description"), this, &TestOrderingDialog::EditDescription)
        ->setEnabled(onNetlist);
    menu.addAction(QStringLiteral("Part of &Main"), this, &TestOrderingDialog::TogglePartOfMain)
        ->setEnabled(onNetlist);
    menu.addSeparator();
    menu.addAction(QStringLiteral("Create &New Station"), this, &TestOrderingDialog::NewStation);
    const bool station0 = *station == 0 || onNetlist;
    menu.addAction(QStringLiteral("&Rename Station"), this, &TestOrderingDialog::RenameStation)
        ->setEnabled(!station0);
    menu.addAction(QStringLiteral("&Delete This Station"), this, &TestOrderingDialog::DeleteStation)
        ->setEnabled(!station0);
    QMenu* patterns = menu.addMenu(QStringLiteral("Assign GRV &Pattern"));
    patterns->setEnabled(!station0);
    QMenu* more = nullptr;
    for (int p = 1; p <= TestOrdering::kMaxPattern; ++p) {
        // The first ten carry an accelerator; the rest sit behind "More".
        const QString caption = p < 10    ? QStringLiteral("GRV Pattern &%1").arg(p)
                                : p == 10 ? QStringLiteral("GRV Pattern 1&0")
                                          : QStringLiteral("GRV Pattern %1").arg(p);
        if (p == 11)
            more = patterns->addMenu(QStringLiteral("&More"));
        QMenu* into = p <= 10 ? patterns : more;
        into->addAction(patternIcon(p), caption, this, [this, p] { SetPattern(p); });
    }
    menu.exec(tree_->viewport()->mapToGlobal(at));
}

void TestOrderingDialog::EditDescription() {
    const std::string name = selectedNetlist();
    if (name.empty() || !ordering_.EditDescription(name, state_.ui()))
        return;
    changed();
    const auto place = ordering_.Find(name);
    select(place->station, place->index);
}

void TestOrderingDialog::TogglePartOfMain() {
    const std::string name = selectedNetlist();
    if (name.empty())
        return;
    ordering_.TogglePartOfMain(name);
    changed();
    const auto place = ordering_.Find(name);
    select(place->station, place->index);
}

void TestOrderingDialog::NewStation() {
    const auto station = selectedStation();
    const std::size_t added = ordering_.NewStation(station.value_or(0));
    changed();
    select(added);
    tree_->editItem(tree_->currentItem());
}

void TestOrderingDialog::RenameStation() {
    const auto station = selectedStation();
    if (station && *station > 0 && selectedNetlist().empty())
        tree_->editItem(tree_->currentItem());
}

void TestOrderingDialog::labelEdited(QTreeWidgetItem* item) {
    if (building_ || item->data(0, kNetlistRole).toInt() >= 0)
        return;
    const auto station = static_cast<std::size_t>(item->data(0, kStationRole).toInt());
    if (ordering_.RenameStation(station, item->text(0).toStdString(), state_.ui()))
        state_.SetDirty(true);
    // Refused or not, the tree shows what the model holds.
    QMetaObject::invokeMethod(
        this,
        [this, station] {
            rebuild();
            select(station);
        },
        Qt::QueuedConnection);
}

void TestOrderingDialog::DeleteStation() {
    const auto station = selectedStation();
    if (!station || *station == 0 || !selectedNetlist().empty())
        return;
    if (!ordering_.DeleteStation(*station, state_.ui()))
        return;
    changed();
    select(*station - 1);
}

void TestOrderingDialog::SetPattern(int pattern) {
    const auto station = selectedStation();
    if (!station || *station == 0 || !selectedNetlist().empty())
        return;
    const std::size_t moved = ordering_.SetPattern(*station, pattern);
    changed();
    select(moved);
}

bool TestOrderingDialog::Drop(QTreeWidgetItem* dragged, QTreeWidgetItem* target) {
    const auto fromStation = static_cast<std::size_t>(dragged->data(0, kStationRole).toInt());
    const int fromNetlist = dragged->data(0, kNetlistRole).toInt();
    const auto toStation = static_cast<std::size_t>(target->data(0, kStationRole).toInt());
    const int toNetlist = target->data(0, kNetlistRole).toInt();
    if (fromNetlist >= 0) {
        const std::string name =
            ordering_.Stations()[fromStation].Netlists[static_cast<std::size_t>(fromNetlist)].Name;
        const std::size_t at = toNetlist >= 0 ? static_cast<std::size_t>(toNetlist)
                                              : ordering_.Stations()[toStation].Netlists.size();
        ordering_.MoveNetlist(name, toStation, at);
        changed();
        const auto place = ordering_.Find(name);
        select(place->station, place->index);
        return true;
    }
    const auto moved = ordering_.MoveStation(fromStation, toStation);
    if (!moved)
        return false;
    changed();
    select(*moved);
    return true;
}

void TestOrderingDialog::accept() {
    if (ordering_.Accept(state_, state_.ui()))
        QDialog::accept();
}

} // namespace zolt::shell

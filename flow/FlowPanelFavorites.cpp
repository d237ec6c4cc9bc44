#include "flow/FlowPanel.h"

#include "flow/BaseNode.h"
#include "flow/FavoritesDeleteDlg.h"
#include "flow/FlowFile.h"
#include "flow/FlowsFolder.h"
#include "flow/NamedEntry.h"
#include "flow/NodesTabBar.h"
#include "flow/ParameterReader.h"
#include "flow/XmlBounds.h"
#include <QMWidgets/InputDialog.h>
#include <QMWidgets/LiteralText.h>
#include <QMWidgets/MMessageBox.h>
#include <QMWidgets/OpenInFileManager.h>

#include <QAction>
#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <QMenu>
#include <QRegularExpression>
#include <QSignalBlocker>

using QMWidgets::InputDialog;
using QMWidgets::MMessageBox;

namespace
{

const QLatin1String kExtension(".flow");
const QLatin1String kFlowTag("OperationsFlow");
const QLatin1String kOperationTag("Operation");
const QLatin1String kNameAttribute("name");
const QLatin1String kIndexAttribute("index");

/// A flow file may count its operations from 0 to one less than this.
constexpr int kIndexEnd = 100;

QAction* addCommand(QMenu* menu, const char* icon, const QString& text)
{
    return menu->addAction(QIcon(QLatin1String(icon)), text);
}

QDomElement operationElement(QDomDocument document, BaseNode* node, int index)
{
    QDomElement operation = document.createElement(kOperationTag);
    QDomAttr nameAttribute = document.createAttribute(kNameAttribute);
    QDomAttr indexAttribute = document.createAttribute(kIndexAttribute);
    nameAttribute.setValue(node->name());
    indexAttribute.setValue(QString::number(index, 10));
    operation.setAttributeNode(nameAttribute);
    operation.setAttributeNode(indexAttribute);
    operation.appendChild(node->parametersElement(document));
    return operation;
}

/// The toolkit writes attributes in an order that changes from run to run. No text looks like this
/// element, since its "<" is written as an entity.
QString withNamesFirst(QString xml)
{
    static const QRegularExpression wrongOrder(
        QStringLiteral("<Operation (index=\"\\d+\") (name=\"[^\"]*\")>"));
    return xml.replace(wrongOrder, QStringLiteral("<Operation \\2 \\1>"));
}

bool isConfirmed(QWidget* parent, const QString& question)
{
    return MMessageBox::warning(parent, FlowPanel::tr("Warning"), QMWidgets::literalText(question),
                                QMessageBox::Yes | QMessageBox::No, 0) == QMessageBox::Yes;
}

} // namespace

void FlowPanel::rebuildFavoritesMenu()
{
    // One of the entries may have started this.
    for (QAction* const action : m_favoritesMenu->actions()) {
        m_favoritesMenu->removeAction(action);
        action->deleteLater();
    }
    connect(addCommand(m_favoritesMenu, ":/new.png", tr("&Clear")), &QAction::triggered, this,
            &FlowPanel::slotNewFavorite);
    m_saveAction = addCommand(m_favoritesMenu, ":/save.png", tr("&Save..."));
    m_saveAction->setEnabled(m_tabBar->count() != 0);
    connect(m_saveAction, &QAction::triggered, this, &FlowPanel::slotSaveFlow);
    connect(addCommand(m_favoritesMenu, ":/delete.png", tr("&Delete...")), &QAction::triggered,
            this, &FlowPanel::slotDeleteFavorite);
    connect(addCommand(m_favoritesMenu, ":/GotoIcon.png", tr("&Go To Flows Location")),
            &QAction::triggered, this, &FlowPanel::slotGotoPresetsLocation);
    m_favoritesMenu->addSeparator();

    m_deleteDialog->clearFlows();
    const QStringList names =
        QDir(flowsFolder()).entryList({QLatin1Char('*') + kExtension}, QDir::Files, QDir::NoSort);
    for (const QString& name : names) {
        connect(addNamedEntry(m_favoritesMenu, QIcon(), name), &QAction::triggered, this,
                &FlowPanel::slotLoadFavorite);
        m_deleteDialog->addFlow(name);
    }
}

void FlowPanel::writeFlow(const QString& fileName)
{
    QDomDocument document{QString()};
    QDomElement root = document.createElement(kFlowTag);
    document.appendChild(root);
    for (int i = 0; i < m_flow.size(); ++i) {
        if (BaseNode* const node = m_flow.value(i)) {
            root.appendChild(operationElement(document, node, i));
        }
    }
    // A flow that can't be written is missed in the menu.
    static_cast<void>(
        FlowFile::write(FlowFile::path(fileName), withNamesFirst(document.toString(1))));
}

QMap<int, QPair<QString, QDomNode>> FlowPanel::readOperations(const QDomElement& root)
{
    QMap<int, QPair<QString, QDomNode>> operations;
    for (QDomElement element = root.firstChildElement(kOperationTag); !element.isNull();
         element = element.nextSiblingElement(kOperationTag)) {
        int index = 0;
        if (ParameterReader::readInt(element.attribute(kIndexAttribute), index)) {
            operations[index] = {element.attribute(kNameAttribute), element.firstChild()};
        }
    }
    return operations;
}

void FlowPanel::loadFlow(const QString& xml)
{
    if (!clearFlow()) {
        return;
    }
    QDomDocument document;
    if (isXmlWithinBounds(xml) && document.setContent(xml)) {
        const auto operations = readOperations(document.documentElement());
        for (auto operation = operations.lowerBound(0);
             operation != operations.end() && operation.key() < kIndexEnd; ++operation) {
            if (BaseNode* const node = addNode(operation->first)) {
                // Each control that is set would run a flow that doesn't hold the node yet.
                const QSignalBlocker quiet(node);
                node->loadParameters(operation->second);
            }
        }
    }
    emit flowChanged(m_flow);
}

bool FlowPanel::clearFlow()
{
    const quint64 clearing = ++m_lastClearing;
    while (clearing == m_lastClearing && m_flow.contains(m_tabBar->currentIndex())) {
        slotRemoveNode();
    }
    return clearing == m_lastClearing;
}

void FlowPanel::slotNewFavorite()
{
    clearFlow();
}

void FlowPanel::slotSaveFlow()
{
    bool ok = false;
    QString name = InputDialog::getText(this, tr("Save Flow"), tr("Flow's Name:"),
                                        QLineEdit::Normal, QString(), &ok, Qt::WindowFlags());
    if (!name.endsWith(kExtension)) {
        name += kExtension;
    }
    if (!ok) {
        return;
    }
    if (name.isEmpty()) {
        // Deliberate: only for the day on which the extension is no longer given above.
        MMessageBox::warning(this, tr("Warning"), tr("Can not create the flow without name"),
                             QMessageBox::Ok, 0);
        return;
    }
    const QString question =
        tr("The flow the with name \"") + name + tr("\" already exists.\nOverwrite?"); // sic
    if (QFileInfo::exists(FlowFile::path(name)) && !isConfirmed(this, question)) {
        return;
    }
    writeFlow(name);
    rebuildFavoritesMenu();
}

void FlowPanel::slotLoadFavorite()
{
    const auto* action = qobject_cast<QAction*>(sender());
    if (!action) {
        return;
    }
    QString xml;
    if (FlowFile::read(FlowFile::path(nameOf(action)), xml)) {
        loadFlow(xml);
    }
}

void FlowPanel::slotDeleteFavorite()
{
    if (m_deleteDialog->exec() != QDialog::Accepted) {
        return;
    }
    const QString name = m_deleteDialog->selectedFlow();
    if (name.isEmpty() || !isConfirmed(this, tr("Remove the flow:\n \"") + name + tr("\"?"))) {
        return;
    }
    // A file that is gone leaves the menu just as well.
    static_cast<void>(QFile(FlowFile::path(name)).remove());
    rebuildFavoritesMenu();
}

void FlowPanel::slotGotoPresetsLocation()
{
    QMWidgets::openInFileManager(flowsFolder());
}

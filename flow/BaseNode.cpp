#include "flow/BaseNode.h"

#include "flow/Operations.h"
#include "flow/ParameterReader.h"
#include <QMWidgets/GroupBox.h>
#include <QMWidgets/Label.h>

#include <QDomDocument>
#include <QFormLayout>
#include <QHBoxLayout>

namespace
{
const QLatin1String kParametersTag("Parameters");
const QLatin1String kActiveTag("Active");
} // namespace

BaseNode::BaseNode(const QString& name, QWidget* parent)
    : QFrame(parent),
      m_disabledImage(QStringLiteral(":/DisabledNode.png")),
      m_groupBox(new QMWidgets::GroupBox(name, this)),
      m_iconLabel(new QMWidgets::Label(this)),
      m_name(name),
      m_optionsLayout(new QVBoxLayout(m_groupBox))
{
    m_groupBox->setCheckable(true);
    m_optionsLayout->setContentsMargins(1, 1, 1, 1);
    m_optionsLayout->setSpacing(3);
    m_iconLabel->setObjectName(QStringLiteral("NodeIconLabel"));
    m_iconLabel->setFixedSize(64, 64);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(1);
    layout->addStretch(1);
    layout->addWidget(m_iconLabel);
    layout->addWidget(m_groupBox);
    layout->addStretch(1);

    connect(m_groupBox, &QGroupBox::clicked, this, &BaseNode::slotActiveStateChanged);
}

bool BaseNode::isActive() const
{
    return m_groupBox->isChecked();
}

void BaseNode::setNodeIcon(const QString& operationName)
{
    m_iconLabel->setPixmap(nodeIcon(operationName));
}

void BaseNode::reportPreview(const QImage& image)
{
    emit previewChanged(isActive() ? image : m_disabledImage);
}

void BaseNode::loadParameters(const QDomNode& parameters)
{
    ParameterReader::forEachElement(parameters, [this](const QString& tag, const QString& text) {
        if (tag == kActiveTag) {
            m_groupBox->setChecked(ParameterReader::readYesNo(text));
        }
    });
    readParameters(parameters);
}

QDomElement BaseNode::parametersElement(QDomDocument document)
{
    QDomElement parameters = document.createElement(kParametersTag);
    QDomElement active = document.createElement(kActiveTag);
    active.appendChild(document.createTextNode(ParameterReader::yesNo(isActive())));
    parameters.appendChild(active);
    writeParameters(parameters, document);
    return parameters;
}

QString BaseNode::parametersText()
{
    QDomDocument document{QString()};
    document.appendChild(parametersElement(document));
    return document.toString(1);
}

void BaseNode::readParameters(const QDomNode&) {}

void BaseNode::writeParameters(QDomElement&, QDomDocument) {}

void BaseNode::slotActiveStateChanged()
{
    emit parametersChanged();
}

QFormLayout* BaseNode::addForm()
{
    auto* form = new QFormLayout;
    m_optionsLayout->addStretch(1);
    m_optionsLayout->addLayout(form);
    m_optionsLayout->addStretch(1);
    return form;
}

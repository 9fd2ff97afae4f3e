#include "panel/LogInPage.h"

#include "service/ServiceAddress.h"
#include "ui_LogInPage.h"

namespace
{

/// Points a label's link, which the form gives a placeholder, at the catalog's web site.
void pointAtServiceSite(QLabel* label)
{
    label->setText(label->text().replace(QLatin1String("SERVICE_SITE/"), ServiceBaseUrl));
}

} // namespace

LogInPage::LogInPage(pvApplication_c* application, QWidget* parent)
    : QWidget(parent), m_form(std::make_unique<Ui::LogInPage>()), m_application(application), m_parent(parent)
{
    m_form->setupUi(this);
    pointAtServiceSite(m_form->ForgotLabel);
    pointAtServiceSite(m_form->signUPLabel);
    m_form->Pass_lineEdit_2->setEchoMode(QLineEdit::Password);
    connect(m_form->LogIn_pushButton, SIGNAL(clicked()), this, SLOT(OnClick()));
}

LogInPage::~LogInPage() = default;

void LogInPage::OnClick()
{
    m_session.SetUserId(m_form->email_lineEdit->text());
    m_session.SetPassword(m_form->Pass_lineEdit_2->text());
    m_session.UserLogin();
}

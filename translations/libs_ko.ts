<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>QMWidgets::AboutDialog</name>
    <message>
        <source>&amp;Legal Notices</source>
        <translation>법적 고지(&amp;L)</translation>
    </message>
    <message>
        <source> Info</source>
        <translation> 정보</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>확인(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>숨기기(&amp;H)</translation>
    </message>
    <message>
        <source>Legal Notices</source>
        <translation>법적 고지</translation>
    </message>
</context>
<context>
    <name>QMWidgets::App</name>
    <message>
        <source>&lt;H3&gt;This Application Uses:&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;이 프로그램이 사용하는 것:&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppMenu</name>
    <message>
        <source>Rate this App</source>
        <translation>이 앱 평가하기</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>다른 앱</translation>
    </message>
    <message>
        <source>Contacts Us</source>
        <translation>문의하기</translation>
    </message>
    <message>
        <source>Support Page</source>
        <translation>지원 페이지</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>종료</translation>
    </message>
    <message>
        <source>Check Updates</source>
        <translation>업데이트 확인</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>공유</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>함께하기</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
</context>
<context>
    <name>QMWidgets::AppUpdateDialog</name>
    <message>
        <source>Check for updates on start</source>
        <translation>시작할 때 업데이트 확인</translation>
    </message>
    <message>
        <source> Updates Notification</source>
        <translation> 업데이트 알림</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;The newer version of </source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;새 버전을 사용할 수 있습니다: </translation>
    </message>
    <message>
        <source> is available.&lt;br&gt;Go to the updates web page?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>.&lt;br&gt;업데이트 웹 페이지로 이동할까요?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H2&gt;You are using the latest version available.&lt;br&gt;Go to the updates web page anyway?&lt;/H2&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H2&gt;최신 버전을 사용하고 있습니다.&lt;br&gt;그래도 업데이트 웹 페이지로 이동할까요?&lt;/H2&gt;&lt;/CENTER&gt;</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ColorWidgetPopup</name>
    <message>
        <source>Colors</source>
        <translation>색상표</translation>
    </message>
    <message>
        <source>Color %1</source>
        <translation>색 %1</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssDoc</name>
    <message>
        <source>Style sheet</source>
        <translation>스타일 시트</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>다른 이름으로 저장</translation>
    </message>
</context>
<context>
    <name>QMWidgets::CssEditor</name>
    <message>
        <source>CSS Style Editor</source>
        <translation>CSS 스타일 편집기</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>열기…(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>저장(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;ave As...</source>
        <translation>다른 이름으로 저장…(&amp;A)</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>&amp;SetInfo</source>
        <translation>정보 설정(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>적용(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>초기화(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>정보(&amp;A)</translation>
    </message>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
</context>
<context>
    <name>QMWidgets::DropWidget</name>
    <message>
        <source>&lt;H1&gt;Drop the photos here&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;사진을 여기에 놓으세요&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Click to open the photos</source>
        <translation>클릭하여 사진 열기</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>사진 열기</translation>
    </message>
</context>
<context>
    <name>QMWidgets::HelpDialog</name>
    <message>
        <source>&amp;Never show on start</source>
        <translation>시작할 때 표시 안 함(&amp;N)</translation>
    </message>
    <message>
        <source> Introduction</source>
        <translation> 소개</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageArea</name>
    <message>
        <source>Loading</source>
        <translation>불러오는 중</translation>
    </message>
    <message>
        <source>&lt;H1&gt;Fit to Window&lt;/H1&gt;</source>
        <translation>&lt;H1&gt;창에 맞춤&lt;/H1&gt;</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>그림</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ImageViewer</name>
    <message>
        <source>Open with Preview</source>
        <translation>뷰어에서 열기</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>확대/축소</translation>
    </message>
    <message>
        <source>Reduce the picture</source>
        <translation>그림 축소</translation>
    </message>
    <message>
        <source>Enlarge the picture</source>
        <translation>그림 확대</translation>
    </message>
    <message>
        <source>Actual Pixels</source>
        <translation>실제 크기</translation>
    </message>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>Fit To Window</source>
        <translation>창에 맞추기</translation>
    </message>
</context>
<context>
    <name>QMWidgets::InputDialog</name>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinDialog</name>
    <message>
        <source>Join us</source>
        <translation>함께하기</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinReminderDialog</name>
    <message>
        <source>Join Us</source>
        <translation>함께하기</translation>
    </message>
</context>
<context>
    <name>QMWidgets::JoinWidget</name>
    <message>
        <source>Join us and stay informed&lt;br&gt;about our</source>
        <translation>함께하며 다음 소식을&lt;br&gt;받아 보세요</translation>
    </message>
    <message>
        <source>   1. FREE APP Actions&lt;br&gt;</source>
        <translation>   1. 무료 앱 행사&lt;br&gt;</translation>
    </message>
    <message>
        <source>   2. APP Updates&lt;br&gt;</source>
        <translation>   2. 앱 업데이트&lt;br&gt;</translation>
    </message>
    <message>
        <source>   3. New APPs&lt;br&gt;</source>
        <translation>   3. 새 앱&lt;br&gt;</translation>
    </message>
    <message>
        <source>   4. Important News&lt;br&gt;</source>
        <translation>   4. 중요한 소식&lt;br&gt;</translation>
    </message>
    <message>
        <source>   and more...</source>
        <translation>   그 밖의 소식…</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MMessageBox</name>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>No</source>
        <translation>아니요</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>예</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>중단</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>무시</translation>
    </message>
    <message>
        <source>YesAll</source>
        <translation>모두 예</translation>
    </message>
    <message>
        <source>NoAll</source>
        <translation>모두 아니요</translation>
    </message>
</context>
<context>
    <name>QMWidgets::MovieLabel</name>
    <message>
        <source>Animation</source>
        <translation>애니메이션</translation>
    </message>
</context>
<context>
    <name>QMWidgets::PromoMenuBar</name>
    <message>
        <source>Introduction</source>
        <translation>소개</translation>
    </message>
    <message>
        <source>More</source>
        <translation>더 보기</translation>
    </message>
    <message>
        <source>Rate App</source>
        <translation>앱 평가</translation>
    </message>
    <message>
        <source>More Apps</source>
        <translation>다른 앱</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>공유</translation>
    </message>
    <message>
        <source>Join Us</source>
        <translation>함께하기</translation>
    </message>
    <message>
        <source>App Menu</source>
        <translation>프로그램 메뉴</translation>
    </message>
</context>
<context>
    <name>QMWidgets::RateReminderDialog</name>
    <message>
        <source>&lt;br&gt;please rate it in the App Store.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;App Store에서 평가해 주세요.&lt;br&gt;감사합니다!</translation>
    </message>
    <message>
        <source>&amp;Rate It Now</source>
        <translation>지금 평가(&amp;R)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::ReminderDialog</name>
    <message>
        <source>&amp;Maybe Later</source>
        <translation>나중에(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Never Ask Me Again</source>
        <translation>다시 묻지 않기(&amp;N)</translation>
    </message>
    <message>
        <source>Help Spread the Word about &quot;</source>
        <translation>널리 알려 주세요: &quot;</translation>
    </message>
    <message>
        <source>If you like </source>
        <translation>마음에 드신다면 </translation>
    </message>
    <message>
        <source>-App,</source>
        <translation> 앱을</translation>
    </message>
</context>
<context>
    <name>QMWidgets::SocialRows</name>
    <message>
        <source>&amp;Close</source>
        <translation>닫기(&amp;C)</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellDialog</name>
    <message>
        <source>Share </source>
        <translation>공유: </translation>
    </message>
    <message>
        <source>If you like&lt;br&gt;&quot;</source>
        <translation>즐겨 쓰시는&lt;br&gt;&quot;</translation>
    </message>
    <message>
        <source>&lt;br&gt;please share it with your friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;친구들과 공유해 주세요.&lt;br&gt;감사합니다!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::TellReminderDialog</name>
    <message>
        <source>Share</source>
        <translation>공유</translation>
    </message>
    <message>
        <source>&lt;br&gt;Share it with Your Friends.&lt;br&gt;Thanks!</source>
        <translation>&lt;br&gt;친구들과 공유해 주세요.&lt;br&gt;감사합니다!</translation>
    </message>
</context>
<context>
    <name>QMWidgets::UpdateCheck</name>
    <message>
        <source> Updates Check Error</source>
        <translation> 업데이트 확인 오류</translation>
    </message>
    <message>
        <source>&lt;H3&gt;No internet connection is available,&lt;br&gt;please, check the firewall settings and make sure that&lt;br&gt;you are not using the the internet connection via the proxy server.&lt;/H3&gt;</source>
        <translation>&lt;H3&gt;인터넷에 연결할 수 없습니다.&lt;br&gt;방화벽 설정을 확인하고&lt;br&gt;프록시 서버를 통해 연결하고 있지 않은지 확인하세요.&lt;/H3&gt;</translation>
    </message>
</context>
<context>
    <name>StepButtons</name>
    <message>
        <source>Next photo</source>
        <translation>다음 사진</translation>
    </message>
    <message>
        <source>Previous photo</source>
        <translation>이전 사진</translation>
    </message>
</context>
</TS>

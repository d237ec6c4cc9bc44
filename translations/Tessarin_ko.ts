<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>AppSettingsDialog</name>
    <message>
        <source>Open Destination Folder When Done</source>
        <translation>완료되면 대상 폴더 열기</translation>
    </message>
    <message>
        <source>Quiality:</source>
        <translation>품질:</translation>
    </message>
    <message>
        <source> Settings</source>
        <translation> 설정</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Format:</source>
        <translation>형식:</translation>
    </message>
    <message>
        <source>Output Format</source>
        <translation>출력 형식</translation>
    </message>
    <message>
        <source>All</source>
        <translation>모두</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>홀수</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>짝수</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>이름 바꾸기</translation>
    </message>
    <message>
        <source>New Name:</source>
        <translation>새 이름:</translation>
    </message>
    <message>
        <source>Numbers:</source>
        <translation>번호:</translation>
    </message>
</context>
<context>
    <name>BCSNode</name>
    <message>
        <source>Brightness:</source>
        <translation>밝기:</translation>
    </message>
    <message>
        <source>Contrast:</source>
        <translation>대비:</translation>
    </message>
    <message>
        <source>Saturation:</source>
        <translation>채도:</translation>
    </message>
</context>
<context>
    <name>BINNode</name>
    <message>
        <source>Threshold:</source>
        <translation>임계값:</translation>
    </message>
</context>
<context>
    <name>BLRNode</name>
    <message>
        <source>Blur:</source>
        <translation>흐림:</translation>
    </message>
</context>
<context>
    <name>BatchDialog</name>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>중지</translation>
    </message>
    <message>
        <source> Batch Process</source>
        <translation> 일괄 처리</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>&lt;CENTER&gt;&lt;H1&gt;Please, wait...&lt;/H1&gt;&lt;/CENTER&gt;</source>
        <translation>&lt;CENTER&gt;&lt;H1&gt;잠시 기다려 주세요…&lt;/H1&gt;&lt;/CENTER&gt;</translation>
    </message>
</context>
<context>
    <name>CRPNode</name>
    <message>
        <source>Left:</source>
        <translation>왼쪽:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>오른쪽:</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>위:</translation>
    </message>
    <message>
        <source>Buttom:</source>
        <translation>아래:</translation>
    </message>
</context>
<context>
    <name>Creator</name>
    <message>
        <source>Show one photo</source>
        <translation>사진 한 장 보기</translation>
    </message>
</context>
<context>
    <name>CreatorDropArea</name>
    <message>
        <source>Click to open the photos</source>
        <translation>클릭하여 사진 열기</translation>
    </message>
    <message>
        <source>&lt;H2&gt;Drop the photos here&lt;/H2&gt;</source>
        <translation>&lt;H2&gt;사진을 여기에 놓으세요&lt;/H2&gt;</translation>
    </message>
    <message>
        <source>Open the photos</source>
        <translation>사진 열기</translation>
    </message>
</context>
<context>
    <name>DirectionsWidget</name>
    <message>
        <source>Top left</source>
        <translation>왼쪽 위</translation>
    </message>
    <message>
        <source>Top middle</source>
        <translation>위 가운데</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>오른쪽 위</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>왼쪽 아래</translation>
    </message>
    <message>
        <source>Bottom middle</source>
        <translation>아래 가운데</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>오른쪽 아래</translation>
    </message>
    <message>
        <source>Middle left</source>
        <translation>왼쪽 가운데</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>가운데</translation>
    </message>
    <message>
        <source>Middle right</source>
        <translation>오른쪽 가운데</translation>
    </message>
</context>
<context>
    <name>FRMNode</name>
    <message>
        <source>Width:</source>
        <translation>너비:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>색:</translation>
    </message>
</context>
<context>
    <name>FavoritesDeleteDlg</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>취소(&amp;C)</translation>
    </message>
    <message>
        <source>Delete the flow</source>
        <translation>플로 삭제</translation>
    </message>
    <message>
        <source>Flows</source>
        <translation>플로</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>삭제(&amp;D)</translation>
    </message>
</context>
<context>
    <name>FlowPanel</name>
    <message>
        <source>Remove selected node</source>
        <translation>선택한 작업 제거</translation>
    </message>
    <message>
        <source>Operations</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Add node</source>
        <translation>작업 추가</translation>
    </message>
    <message>
        <source>Save the resulted photos to the separate folder</source>
        <translation>결과 사진을 별도의 폴더에 저장</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>비우기(&amp;C)</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation>저장…(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Delete...</source>
        <translation>삭제…(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Go To Flows Location</source>
        <translation>플로 폴더 열기(&amp;G)</translation>
    </message>
    <message>
        <source>Save Flow</source>
        <translation>플로 저장</translation>
    </message>
    <message>
        <source>Flow&apos;s Name:</source>
        <translation>플로 이름:</translation>
    </message>
    <message>
        <source>Can not create the flow without name</source>
        <translation>이름 없이 플로를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>The flow the with name &quot;</source>
        <translation>다음 이름의 플로가 있습니다: &quot;</translation>
    </message>
    <message>
        <source>&quot; already exists.
Overwrite?</source>
        <translation>&quot;.
덮어쓰시겠습니까?</translation>
    </message>
    <message>
        <source>Remove the flow:
 &quot;</source>
        <translation>다음 플로를 제거할까요:
 &quot;</translation>
    </message>
    <message>
        <source>&quot;?</source>
        <translation>&quot;?</translation>
    </message>
</context>
<context>
    <name>HSTNode</name>
    <message>
        <source>Left:</source>
        <translation>왼쪽:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>오른쪽:</translation>
    </message>
</context>
<context>
    <name>IconWidget</name>
    <message>
        <source>Photos</source>
        <translation>사진</translation>
    </message>
</context>
<context>
    <name>InitLabel</name>
    <message>
        <source>Add an operation</source>
        <translation>작업 추가</translation>
    </message>
    <message>
        <source>Press the round + and pick a step.</source>
        <translation>둥근 + 버튼을 누르고 단계를 고르세요.</translation>
    </message>
    <message>
        <source>Steps run from left to right.</source>
        <translation>단계는 왼쪽에서 오른쪽으로 실행됩니다.</translation>
    </message>
</context>
<context>
    <name>MRRNode</name>
    <message>
        <source>Mirror horizontally</source>
        <translation>좌우 대칭</translation>
    </message>
    <message>
        <source>Mirror vertically</source>
        <translation>상하 대칭</translation>
    </message>
</context>
<context>
    <name>MainPage</name>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
</context>
<context>
    <name>NodesTabBar</name>
    <message>
        <source>Earlier operations</source>
        <translation>이전 작업</translation>
    </message>
    <message>
        <source>Later operations</source>
        <translation>다음 작업</translation>
    </message>
</context>
<context>
    <name>RGBNode</name>
    <message>
        <source>Red&lt;-&gt;Blue</source>
        <translation>빨강&lt;-&gt;파랑</translation>
    </message>
    <message>
        <source>Red&lt;-&gt;Green</source>
        <translation>빨강&lt;-&gt;초록</translation>
    </message>
    <message>
        <source>Green&lt;-&gt;Blue</source>
        <translation>초록&lt;-&gt;파랑</translation>
    </message>
</context>
<context>
    <name>RSZNode</name>
    <message>
        <source>Width:</source>
        <translation>너비:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>높이:</translation>
    </message>
    <message>
        <source>Percentage</source>
        <translation>백분율</translation>
    </message>
    <message>
        <source>Maximum Pixels</source>
        <translation>최대 픽셀</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>픽셀</translation>
    </message>
    <message>
        <source>Scale by:</source>
        <translation>크기 기준:</translation>
    </message>
</context>
<context>
    <name>RTTNode</name>
    <message>
        <source>Rotate right</source>
        <translation>오른쪽으로 회전</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>왼쪽으로 회전</translation>
    </message>
</context>
<context>
    <name>Representor</name>
    <message>
        <source>Large view</source>
        <translation>크게 보기</translation>
    </message>
</context>
<context>
    <name>TabLabel</name>
    <message>
        <source>Preview</source>
        <translation>미리 보기</translation>
    </message>
</context>
<context>
    <name>UCSNode</name>
    <message>
        <source>Radius:</source>
        <translation>반경:</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>불투명도:</translation>
    </message>
    <message>
        <source>Color:</source>
        <translation>색:</translation>
    </message>
</context>
<context>
    <name>WMRNode</name>
    <message>
        <source>Size:</source>
        <translation>크기:</translation>
    </message>
    <message>
        <source>Transparency:</source>
        <translation>투명도:</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>굵게</translation>
    </message>
    <message>
        <source>Italic</source>
        <translation>기울임꼴</translation>
    </message>
    <message>
        <source>Underlined</source>
        <translation>밑줄</translation>
    </message>
    <message>
        <source>Text color</source>
        <translation>텍스트 색</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>배경</translation>
    </message>
    <message>
        <source>Draw the background</source>
        <translation>배경 그리기</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>텍스트</translation>
    </message>
    <message>
        <source>Image</source>
        <translation>이미지</translation>
    </message>
    <message>
        <source>Open the watermark file</source>
        <translation>워터마크 파일 열기</translation>
    </message>
    <message>
        <source>Expand</source>
        <translation>늘이기</translation>
    </message>
    <message>
        <source>Horizontal offset</source>
        <translation>가로 오프셋</translation>
    </message>
    <message>
        <source>Vertical offset</source>
        <translation>세로 오프셋</translation>
    </message>
    <message>
        <source>x:</source>
        <translation>x:</translation>
    </message>
    <message>
        <source>y:</source>
        <translation>y:</translation>
    </message>
    <message>
        <source>Kind:</source>
        <translation>종류:</translation>
    </message>
    <message>
        <source>Logo:</source>
        <translation>로고:</translation>
    </message>
    <message>
        <source>Expand:</source>
        <translation>늘이기:</translation>
    </message>
    <message>
        <source>Text:</source>
        <translation>텍스트:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>글꼴:</translation>
    </message>
    <message>
        <source>Text color:</source>
        <translation>텍스트 색:</translation>
    </message>
    <message>
        <source>Background:</source>
        <translation>배경:</translation>
    </message>
    <message>
        <source>Position:</source>
        <translation>위치:</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Can not open the image file:</source>
        <translation>이미지 파일을 열 수 없습니다:</translation>
    </message>
</context>
</TS>

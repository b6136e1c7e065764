<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>CarControlView</name>
    <message>
        <source>No model currently selected, please select a model in factory settings</source>
        <translation>目前未選擇車型，請在工廠設定中選擇車型</translation>
    </message>
    <message>
        <source>This model does not support the air conditioning function</source>
        <translation>此車型不支援空調功能</translation>
    </message>
</context>
<context>
    <name>CarDoorTipIcon</name>
    <message>
        <source>Doors and hood not closed</source>
        <translation>車門和引擎蓋未關</translation>
    </message>
    <message>
        <source>Doors and trunk not closed</source>
        <translation>車門和行李廂未關</translation>
    </message>
    <message>
        <source>Door not closed</source>
        <translation>車門未關</translation>
    </message>
    <message>
        <source>The hood and trunk are not closed</source>
        <translation>引擎蓋和行李廂未關</translation>
    </message>
    <message>
        <source>The hood is not closed</source>
        <translation>引擎蓋未關</translation>
    </message>
    <message>
        <source>trunk not closed</source>
        <translation>行李廂未關</translation>
    </message>
</context>
<context>
    <name>CarExView102</name>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
</context>
<context>
    <name>CarExView103</name>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>Tire pressure monitoring</source>
        <translation>胎壓監測</translation>
    </message>
    <message>
        <source>Amplifier Information</source>
        <translation>擴大機資訊</translation>
    </message>
</context>
<context>
    <name>CarExView105</name>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
    <message>
        <source>On-board computer information</source>
        <translation>行車電腦資訊</translation>
    </message>
    <message>
        <source>Vehicle Setup Information 2</source>
        <translation>車輛設定資訊2</translation>
    </message>
    <message>
        <source>Vehicle Setup Information 1</source>
        <translation>車輛設定資訊1</translation>
    </message>
    <message>
        <source>Vehicle Setup Information</source>
        <translation>車輛設定資訊</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎壓資訊</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
</context>
<context>
    <name>CarExView122</name>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
    <message>
        <source>Vehicle Information 1</source>
        <translation>車輛資訊1</translation>
    </message>
    <message>
        <source>Setting item information</source>
        <translation>設定項資訊</translation>
    </message>
    <message>
        <source>Setting item display</source>
        <translation>設定項顯示</translation>
    </message>
    <message>
        <source>Body Information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
</context>
<context>
    <name>CarExView123</name>
    <message>
        <source>Basic information</source>
        <translation>基本資訊</translation>
    </message>
    <message>
        <source>Original car power release state</source>
        <translation>原車擴大機釋放狀態</translation>
    </message>
    <message>
        <source>Vehicle driving fuel consumption information</source>
        <translation>車輛行駛油耗資訊</translation>
    </message>
</context>
<context>
    <name>CarExView124</name>
    <message>
        <source>Basic information</source>
        <translation>基本資訊</translation>
    </message>
    <message>
        <source>Vehicle settings information</source>
        <translation>車輛設定資訊</translation>
    </message>
    <message>
        <source>CD/DVD status</source>
        <translation>CD/DVD狀態</translation>
    </message>
</context>
<context>
    <name>CarExView27</name>
    <message>
        <source>This model doesn&apos;t support this feature</source>
        <translation>此車型不支援此功能</translation>
    </message>
</context>
<context>
    <name>CarExView28</name>
    <message>
        <source>Parking assist status</source>
        <translation>停車輔助狀態</translation>
    </message>
    <message>
        <source>Amplifier status</source>
        <translation>擴大機狀態</translation>
    </message>
    <message>
        <source>Body information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>行車資料</translation>
    </message>
    <message>
        <source>Electronic Sisplay</source>
        <translation>電子顯示</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎壓資訊</translation>
    </message>
    <message>
        <source>Car condition check</source>
        <translation>車況檢查</translation>
    </message>
    <message>
        <source>Electric management status</source>
        <translation>電能管理狀態</translation>
    </message>
</context>
<context>
    <name>CarExView29</name>
    <message>
        <source>Parking assist status</source>
        <translation>停車輔助狀態</translation>
    </message>
    <message>
        <source>Amplifier status</source>
        <translation>擴大機狀態</translation>
    </message>
    <message>
        <source>Body information</source>
        <translation>車身資訊</translation>
    </message>
</context>
<context>
    <name>CarExView30</name>
    <message>
        <source>Tire pressure information</source>
        <translation>胎壓資訊</translation>
    </message>
    <message>
        <source>Hybrid information</source>
        <translation>混動資訊</translation>
    </message>
    <message>
        <source>Vehicle setting status</source>
        <translation>車輛設定狀態</translation>
    </message>
    <message>
        <source>Amplifier information</source>
        <translation>擴大機資訊</translation>
    </message>
    <message>
        <source>Body setting status</source>
        <translation>車身設定狀態</translation>
    </message>
    <message>
        <source>Historical fuel consumption information</source>
        <translation>歷史油耗資訊</translation>
    </message>
    <message>
        <source>Mileage information</source>
        <translation>里程資訊</translation>
    </message>
    <message>
        <source>Fuel consumption in the past 15 minutes</source>
        <translation>過去15分鐘油耗</translation>
    </message>
    <message>
        <source>Multimedia information</source>
        <translation>多媒體資訊</translation>
    </message>
</context>
<context>
    <name>CarExView31</name>
    <message>
        <source>Parking assist status</source>
        <translation>停車輔助狀態</translation>
    </message>
    <message>
        <source>Fuel consumption and mileage information</source>
        <translation>油耗與里程資訊</translation>
    </message>
    <message>
        <source>Power flow information</source>
        <translation>動力流資訊</translation>
    </message>
    <message>
        <source>Original car radio data</source>
        <translation>原車收音資料</translation>
    </message>
    <message>
        <source>Backlight adjustment information</source>
        <translation>背光調節資訊</translation>
    </message>
    <message>
        <source>Vehicle setting status</source>
        <translation>車輛設定狀態</translation>
    </message>
</context>
<context>
    <name>CarExView32</name>
    <message>
        <source>Multimedia information</source>
        <translation>多媒體資訊</translation>
    </message>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>Vehicle setting information</source>
        <translation>車輛設定資訊</translation>
    </message>
    <message>
        <source>Amplifier information</source>
        <translation>擴大機資訊</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
</context>
<context>
    <name>CarExView33</name>
    <message>
        <source>Compass information</source>
        <translation>指南針資訊</translation>
    </message>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>Original car settings</source>
        <translation>原車設定</translation>
    </message>
    <message>
        <source>New energy display information</source>
        <translation>新能源顯示資訊</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
    <message>
        <source>New energy setting information</source>
        <translation>新能源設定資訊</translation>
    </message>
    <message>
        <source>Intelligent perception system information</source>
        <translation>智慧感知系統資訊</translation>
    </message>
    <message>
        <source>Vehicle control information</source>
        <translation>車輛控制資訊</translation>
    </message>
</context>
<context>
    <name>CarExView34</name>
    <message>
        <source>Parking assist status</source>
        <translation>停車輔助狀態</translation>
    </message>
    <message>
        <source>Amplifier status</source>
        <translation>擴大機狀態</translation>
    </message>
    <message>
        <source>Body information</source>
        <translation>車身資訊</translation>
    </message>
</context>
<context>
    <name>CarExView35</name>
    <message>
        <source>Vehicle setting information</source>
        <translation>車輛設定資訊</translation>
    </message>
    <message>
        <source>Mileage information</source>
        <translation>里程資訊</translation>
    </message>
</context>
<context>
    <name>CarExView36</name>
    <message>
        <source>Parking assist status</source>
        <translation>停車輔助狀態</translation>
    </message>
    <message>
        <source>Fuel consumption and mileage information</source>
        <translation>油耗與里程資訊</translation>
    </message>
</context>
<context>
    <name>CarExView37</name>
    <message>
        <source>Automatic parking information</source>
        <translation>自動停車資訊</translation>
    </message>
    <message>
        <source>Hybrid information</source>
        <translation>混動資訊</translation>
    </message>
    <message>
        <source>Body air conditioning settings</source>
        <translation>車身空調設定</translation>
    </message>
    <message>
        <source>Body control setting information 2</source>
        <translation>車身控制設定資訊2</translation>
    </message>
    <message>
        <source>Body control setting information</source>
        <translation>車身控制設定資訊</translation>
    </message>
    <message>
        <source>Body air conditioning control information</source>
        <translation>車身空調控制資訊</translation>
    </message>
    <message>
        <source>Simulate the key information of the original car panel</source>
        <translation>模擬原車面板按鍵資訊</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎壓資訊</translation>
    </message>
    <message>
        <source>OnStar Information</source>
        <translation>安吉星資訊</translation>
    </message>
</context>
<context>
    <name>CarExView40</name>
    <message>
        <source>Body information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>Amplifier information</source>
        <translation>擴大機資訊</translation>
    </message>
</context>
<context>
    <name>CarExView42</name>
    <message>
        <source>Vehicle settings</source>
        <translation>車輛設定</translation>
    </message>
</context>
<context>
    <name>CarExView43</name>
    <message>
        <source>Body information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>Panorama and Auxiliary</source>
        <translation>環景與輔助</translation>
    </message>
    <message>
        <source>Body setting status</source>
        <translation>車身設定狀態</translation>
    </message>
</context>
<context>
    <name>CarExView45</name>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
    <message>
        <source>Vehicle Information 1</source>
        <translation>車輛資訊1</translation>
    </message>
    <message>
        <source>Setting item information</source>
        <translation>設定項資訊</translation>
    </message>
    <message>
        <source>Setting item display</source>
        <translation>設定項顯示</translation>
    </message>
</context>
<context>
    <name>CarExView48</name>
    <message>
        <source>Parking assist status</source>
        <translation>停車輔助狀態</translation>
    </message>
    <message>
        <source>Multimedia information</source>
        <translation>多媒體資訊</translation>
    </message>
    <message>
        <source>SYNC information</source>
        <translation>SYNC資訊</translation>
    </message>
    <message>
        <source>Seat massage</source>
        <translation>座椅按摩</translation>
    </message>
    <message>
        <source>Power amplifier status</source>
        <translation>擴大機狀態</translation>
    </message>
    <message>
        <source>Smart Xinfeng</source>
        <translation>智慧新風</translation>
    </message>
    <message>
        <source>Set item status</source>
        <translation>設定項狀態</translation>
    </message>
    <message>
        <source>Basic Information</source>
        <translation>基本資訊</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎壓資訊</translation>
    </message>
    <message>
        <source>SYNC command</source>
        <translation>SYNC命令</translation>
    </message>
</context>
<context>
    <name>CarExView49</name>
    <message>
        <source>Parking assist status</source>
        <translation>停車輔助狀態</translation>
    </message>
    <message>
        <source>Setting item status</source>
        <translation>設定項狀態</translation>
    </message>
    <message>
        <source>Setting item setting 1</source>
        <translation>設定項設定1</translation>
    </message>
    <message>
        <source>Setting item setting 2</source>
        <translation>設定項設定2</translation>
    </message>
    <message>
        <source>Panorama information</source>
        <translation>環景資訊</translation>
    </message>
    <message>
        <source>PM2.5 data</source>
        <translation>PM2.5資料</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎壓資訊</translation>
    </message>
</context>
<context>
    <name>CarExView56</name>
    <message>
        <source>Body information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
</context>
<context>
    <name>CarExView60</name>
    <message>
        <source>Body information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>Original car setting information</source>
        <translation>原車設定資訊</translation>
    </message>
    <message>
        <source>Original vehicle vehicle information 2</source>
        <translation>原車車輛資訊2</translation>
    </message>
    <message>
        <source>Amplifier information</source>
        <translation>擴大機資訊</translation>
    </message>
    <message>
        <source>CD status information</source>
        <translation>CD狀態資訊</translation>
    </message>
    <message>
        <source>Panorama information</source>
        <translation>環景資訊</translation>
    </message>
</context>
<context>
    <name>CarExView64</name>
    <message>
        <source>Energy management setup information</source>
        <translation>能量管理設定資訊</translation>
    </message>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>vehicle setup information</source>
        <translation>車輛設定資訊</translation>
    </message>
    <message>
        <source>Tire pressure warning message</source>
        <translation>胎壓警告訊息</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
    <message>
        <source>automatic parking status</source>
        <translation>自動停車狀態</translation>
    </message>
    <message>
        <source>Panoramic information</source>
        <translation>環景資訊</translation>
    </message>
</context>
<context>
    <name>CarExView65</name>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
    <message>
        <source>Security Settings Status Information</source>
        <translation>安全設定狀態資訊</translation>
    </message>
    <message>
        <source>Original car radio status information</source>
        <translation>原車收音狀態資訊</translation>
    </message>
    <message>
        <source>Original car amplifier settings</source>
        <translation>原車擴大機設定</translation>
    </message>
    <message>
        <source>CD/DVD media information</source>
        <translation>CD/DVD媒體資訊</translation>
    </message>
    <message>
        <source>i-stop information</source>
        <translation>i-stop資訊</translation>
    </message>
    <message>
        <source>fuel information</source>
        <translation>燃油資訊</translation>
    </message>
    <message>
        <source>set item status</source>
        <translation>設定項狀態</translation>
    </message>
    <message>
        <source>driving display</source>
        <translation>行車顯示</translation>
    </message>
    <message>
        <source>Maintenance information</source>
        <translation>保養資訊</translation>
    </message>
    <message>
        <source>Basic Information</source>
        <translation>基本資訊</translation>
    </message>
    <message>
        <source>Tire pressure display</source>
        <translation>胎壓顯示</translation>
    </message>
</context>
<context>
    <name>CarExView66</name>
    <message>
        <source>Basic Information</source>
        <translation>基本資訊</translation>
    </message>
</context>
<context>
    <name>CarExView67</name>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
    <message>
        <source>Amplifier Information</source>
        <translation>擴大機資訊</translation>
    </message>
    <message>
        <source>New energy setting information 5</source>
        <translation>新能源設定資訊5</translation>
    </message>
    <message>
        <source>New energy setting information 4</source>
        <translation>新能源設定資訊4</translation>
    </message>
    <message>
        <source>New energy setting information 3</source>
        <translation>新能源設定資訊3</translation>
    </message>
    <message>
        <source>New energy setting information 2</source>
        <translation>新能源設定資訊2</translation>
    </message>
    <message>
        <source>New energy setting information 1</source>
        <translation>新能源設定資訊1</translation>
    </message>
    <message>
        <source>vehicle setup command</source>
        <translation>車輛設定命令</translation>
    </message>
    <message>
        <source>Panoramic image status</source>
        <translation>環景影像狀態</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎壓資訊</translation>
    </message>
    <message>
        <source>Basic body information</source>
        <translation>車身基本資訊</translation>
    </message>
</context>
<context>
    <name>CarExView68</name>
    <message>
        <source>vehicle settings</source>
        <translation>車輛設定</translation>
    </message>
    <message>
        <source>Setting item status information</source>
        <translation>設定項狀態資訊</translation>
    </message>
    <message>
        <source>Set item status 2 information</source>
        <translation>設定項狀態2資訊</translation>
    </message>
</context>
<context>
    <name>CarExView69</name>
    <message>
        <source>vehicle settings</source>
        <translation>車輛設定</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎壓資訊</translation>
    </message>
    <message>
        <source>Original car setting item information feedback</source>
        <translation>原車設定項資訊回饋</translation>
    </message>
    <message>
        <source>360 panoramic information feedback</source>
        <translation>360環景資訊回饋</translation>
    </message>
    <message>
        <source>energy information</source>
        <translation>能量資訊</translation>
    </message>
    <message>
        <source>Original car setting item information 2</source>
        <translation>原車設定項資訊2</translation>
    </message>
    <message>
        <source>Dashcam settings</source>
        <translation>行車記錄儀設定</translation>
    </message>
    <message>
        <source>voice control</source>
        <translation>語音控制</translation>
    </message>
</context>
<context>
    <name>CarExView70</name>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
    <message>
        <source>set item status</source>
        <translation>設定項狀態</translation>
    </message>
    <message>
        <source>Tire pressure display</source>
        <translation>胎壓顯示</translation>
    </message>
</context>
<context>
    <name>CarExView71</name>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
</context>
<context>
    <name>CarExView72</name>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
    <message>
        <source>List of potentials</source>
        <translation>潛力列表</translation>
    </message>
    <message>
        <source>Oil Potential List</source>
        <translation>燃油潛力列表</translation>
    </message>
    <message>
        <source>energy management</source>
        <translation>能量管理</translation>
    </message>
    <message>
        <source>driving mode</source>
        <translation>駕駛模式</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎壓資訊</translation>
    </message>
    <message>
        <source>Panoramic information</source>
        <translation>環景資訊</translation>
    </message>
    <message>
        <source>Warning message</source>
        <translation>警告訊息</translation>
    </message>
    <message>
        <source>Vehicle Setup Information 3</source>
        <translation>車輛設定資訊3</translation>
    </message>
    <message>
        <source>Vehicle Setup Information 2</source>
        <translation>車輛設定資訊2</translation>
    </message>
    <message>
        <source>Vehicle Setup Information</source>
        <translation>車輛設定資訊</translation>
    </message>
    <message>
        <source>Vehicle Setup Information 4</source>
        <translation>車輛設定資訊4</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
</context>
<context>
    <name>CarExView74</name>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>Original car information</source>
        <translation>原車資訊</translation>
    </message>
    <message>
        <source>The status of the original car setting item is returned</source>
        <translation>原車設定項狀態回饋</translation>
    </message>
    <message>
        <source>original car fault information</source>
        <translation>原車故障資訊</translation>
    </message>
    <message>
        <source>Car health examination</source>
        <translation>車輛健康檢查</translation>
    </message>
</context>
<context>
    <name>CarExView78</name>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>vehicle settings</source>
        <translation>車輛設定</translation>
    </message>
</context>
<context>
    <name>CarExView79</name>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>Original car setup information</source>
        <translation>原車設定資訊</translation>
    </message>
    <message>
        <source>energy information</source>
        <translation>能量資訊</translation>
    </message>
    <message>
        <source>energy efficient driving</source>
        <translation>節能駕駛</translation>
    </message>
</context>
<context>
    <name>CarExView80</name>
    <message>
        <source>AVM set feedback status</source>
        <translation>AVM設定回饋狀態</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
</context>
<context>
    <name>CarExView81</name>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
</context>
<context>
    <name>CarExView82</name>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
</context>
<context>
    <name>CarExView84</name>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
</context>
<context>
    <name>CarExView86</name>
    <message>
        <source>Amplifier Information</source>
        <translation>擴大機資訊</translation>
    </message>
    <message>
        <source>Trip computer information</source>
        <translation>行車電腦資訊</translation>
    </message>
</context>
<context>
    <name>CarExView87</name>
    <message>
        <source>Amplifier Information</source>
        <translation>擴大機資訊</translation>
    </message>
    <message>
        <source>Trip computer information</source>
        <translation>行車電腦資訊</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>Air conditioner preset state</source>
        <translation>空調預設狀態</translation>
    </message>
    <message>
        <source>car status</source>
        <translation>車輛狀態</translation>
    </message>
    <message>
        <source>Memory speed value</source>
        <translation>記憶車速值</translation>
    </message>
    <message>
        <source>Cruising speed, speed limit</source>
        <translation>巡航車速、限速</translation>
    </message>
    <message>
        <source>set item status 2</source>
        <translation>設定項狀態2</translation>
    </message>
    <message>
        <source>Hybrid information-energy flow</source>
        <translation>混動資訊-能量流</translation>
    </message>
    <message>
        <source>Hybrid information-statistics</source>
        <translation>混動資訊-統計</translation>
    </message>
    <message>
        <source>Hybrid information-charging and battery storage</source>
        <translation>混動資訊-充電與電池儲能</translation>
    </message>
</context>
<context>
    <name>CarExView88</name>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>Rear seat air conditioner information</source>
        <translation>後排空調資訊</translation>
    </message>
    <message>
        <source>Vehicle Control Information 1</source>
        <translation>車輛控制資訊1</translation>
    </message>
    <message>
        <source>CD status information</source>
        <translation>CD狀態資訊</translation>
    </message>
    <message>
        <source>Vehicle Control Information 3</source>
        <translation>車輛控制資訊3</translation>
    </message>
    <message>
        <source>Amplifier status</source>
        <translation>擴大機狀態</translation>
    </message>
    <message>
        <source>performance control system</source>
        <translation>效能控制系統</translation>
    </message>
    <message>
        <source>Hybrid information</source>
        <translation>混動資訊</translation>
    </message>
</context>
<context>
    <name>CarExView93</name>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
</context>
<context>
    <name>CarExView94</name>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
</context>
<context>
    <name>CarExView96</name>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>Amplifier Information</source>
        <translation>擴大機資訊</translation>
    </message>
    <message>
        <source>fuel consumption information</source>
        <translation>油耗資訊</translation>
    </message>
    <message>
        <source>Setting item information</source>
        <translation>設定項資訊</translation>
    </message>
</context>
<context>
    <name>CarExView97</name>
    <message>
        <source>Voice control feedback</source>
        <translation>語音控制回饋</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能識別</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>車輛資訊</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎壓資訊</translation>
    </message>
    <message>
        <source>Fuel consumption and mileage information</source>
        <translation>油耗與里程資訊</translation>
    </message>
    <message>
        <source>set item status</source>
        <translation>設定項狀態</translation>
    </message>
</context>
<context>
    <name>CarExView98</name>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>Setting item information</source>
        <translation>設定項資訊</translation>
    </message>
    <message>
        <source>Trip information</source>
        <translation>行程資訊</translation>
    </message>
</context>
<context>
    <name>CarExView99</name>
    <message>
        <source>body information</source>
        <translation>車身資訊</translation>
    </message>
    <message>
        <source>Panorama state</source>
        <translation>環景狀態</translation>
    </message>
</context>
<context>
    <name>CarInfoItem102_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem102_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>車窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>車窗-左後</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>車窗-右後</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>車窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem102_3</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6級</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左後車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右後車窗開閉</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗開閉</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem105_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem105_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>車窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>車窗-左後</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>車窗-右後</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>車窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem105_3</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6級</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左後車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右後車窗開閉</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗開閉</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem122_6</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem122_7</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>車窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>車窗-左後</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>車窗-右後</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>車窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem122_8</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6級</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左後車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右後車窗開閉</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗開閉</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem124_1</name>
    <message>
        <source>AUX</source>
        <translation>AUX</translation>
    </message>
    <message>
        <source>Avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>CD/DVD</source>
        <translation>CD/DVD</translation>
    </message>
    <message>
        <source>Current audio selection status of decoding box</source>
        <translation>解碼盒目前音源選擇狀態</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Light info</source>
        <translation>燈光資訊</translation>
    </message>
    <message>
        <source>Non P gear</source>
        <translation>非P檔</translation>
    </message>
    <message>
        <source>Non reversing</source>
        <translation>非倒車</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>P gear</source>
        <translation>P檔</translation>
    </message>
    <message>
        <source>P-gear or handbrake status</source>
        <translation>P檔或手煞車狀態</translation>
    </message>
    <message>
        <source>Park assist system status</source>
        <translation>停車輔助系統狀態</translation>
    </message>
    <message>
        <source>Reversing</source>
        <translation>倒車中</translation>
    </message>
    <message>
        <source>Reversing state</source>
        <translation>倒車狀態</translation>
    </message>
    <message>
        <source>Version information</source>
        <translation>版本資訊</translation>
    </message>
</context>
<context>
    <name>CarInfoItem124_2</name>
    <message>
        <source>10s</source>
        <translation>10s</translation>
    </message>
    <message>
        <source>120s</source>
        <translation>120s</translation>
    </message>
    <message>
        <source>15s</source>
        <translation>15s</translation>
    </message>
    <message>
        <source>30s</source>
        <translation>30s</translation>
    </message>
    <message>
        <source>60s</source>
        <translation>60s</translation>
    </message>
    <message>
        <source>7.5s</source>
        <translation>7.5s</translation>
    </message>
    <message>
        <source>90s</source>
        <translation>90s</translation>
    </message>
    <message>
        <source>Adaptive front lighting system</source>
        <translation>自適應前照燈系統</translation>
    </message>
    <message>
        <source>Automatic headlights on</source>
        <translation>頭燈自動開啟</translation>
    </message>
    <message>
        <source>Automatic locking mode</source>
        <translation>自動上鎖模式</translation>
    </message>
    <message>
        <source>Automatic relock time</source>
        <translation>自動重新上鎖時間</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>亮</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>暗</translation>
    </message>
    <message>
        <source>Exit vehicle lock</source>
        <translation>下車上鎖</translation>
    </message>
    <message>
        <source>Headlight off timer</source>
        <translation>頭燈關閉時間</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Inductive wiper</source>
        <translation>感應雨刷</translation>
    </message>
    <message>
        <source>Keyless lock sound volume</source>
        <translation>無鑰匙上鎖提示音音量</translation>
    </message>
    <message>
        <source>Lamp reminder</source>
        <translation>車燈提醒</translation>
    </message>
    <message>
        <source>Lock:Unlock while,driving:flameout</source>
        <translation>上鎖：行車時；解鎖：熄火時</translation>
    </message>
    <message>
        <source>Lock:When driving</source>
        <translation>上鎖：行車時</translation>
    </message>
    <message>
        <source>Lock:exiting park</source>
        <translation>上鎖：離開P檔時</translation>
    </message>
    <message>
        <source>Lock:exiting park,unlock:enter park</source>
        <translation>上鎖：離開P檔時；解鎖：掛入P檔時</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Medium brightness</source>
        <translation>中等亮度</translation>
    </message>
    <message>
        <source>Medium darkness</source>
        <translation>中等暗度</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>Once: All the doors</source>
        <translation>一次：所有車門</translation>
    </message>
    <message>
        <source>Once: the driver&apos;s side door, twice: all the doors</source>
        <translation>一次：駕駛員側車門；兩次：所有車門</translation>
    </message>
    <message>
        <source>Triple flashing turn signal</source>
        <translation>方向燈閃爍三次</translation>
    </message>
    <message>
        <source>Turn signal volume</source>
        <translation>方向燈音量</translation>
    </message>
    <message>
        <source>Unlock mode</source>
        <translation>解鎖模式</translation>
    </message>
    <message>
        <source>When the door is closed-the interior lights automatically turn off</source>
        <translation>車門關閉時室內燈自動熄滅</translation>
    </message>
    <message>
        <source>When the door is opened-the interior lights automatically turn off</source>
        <translation>車門開啟時室內燈自動熄滅</translation>
    </message>
    <message>
        <source>low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>not select</source>
        <translation>未選擇</translation>
    </message>
    <message>
        <source>select</source>
        <translation>選擇</translation>
    </message>
</context>
<context>
    <name>CarInfoItem124_3</name>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一曲</translation>
    </message>
    <message>
        <source>Prev</source>
        <translation>上一曲</translation>
    </message>
    <message>
        <source>Fast forward</source>
        <translation>快進</translation>
    </message>
    <message>
        <source>Rewind quickly</source>
        <translation>快退</translation>
    </message>
    <message>
        <source>RPT</source>
        <translation>重複</translation>
    </message>
    <message>
        <source>RDM</source>
        <translation>隨機</translation>
    </message>
    <message>
        <source>SCAM</source>
        <translation>掃描</translation>
    </message>
    <message>
        <source>AUX</source>
        <translation>AUX</translation>
    </message>
    <message>
        <source>CD</source>
        <translation>CD</translation>
    </message>
    <message>
        <source>DVD</source>
        <translation>DVD</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Discing</source>
        <translation>出碟</translation>
    </message>
    <message>
        <source>Captions OFF</source>
        <translation>字幕關</translation>
    </message>
    <message>
        <source>Aspect ratio</source>
        <translation>畫面比例</translation>
    </message>
    <message>
        <source>List</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>16:9 widescreen</source>
        <translation>16:9寬螢幕</translation>
    </message>
    <message>
        <source>4:3 Frames</source>
        <translation>4:3畫框</translation>
    </message>
    <message>
        <source>4:3 Panorama</source>
        <translation>4:3環景</translation>
    </message>
    <message>
        <source>RPT ON</source>
        <translation>重複開</translation>
    </message>
    <message>
        <source>RPT OFF</source>
        <translation>重複關</translation>
    </message>
    <message>
        <source>RDM ON</source>
        <translation>隨機開</translation>
    </message>
    <message>
        <source>RDM OFF</source>
        <translation>隨機關</translation>
    </message>
    <message>
        <source>Subtitle on</source>
        <translation>字幕開</translation>
    </message>
    <message>
        <source>Subtitle off</source>
        <translation>字幕關</translation>
    </message>
</context>
<context>
    <name>CarInfoItem28_1</name>
    <message>
        <source>Ambient temperature information</source>
        <translation>環境溫度資訊</translation>
    </message>
    <message>
        <source>Conv.Consumers prompt message 1</source>
        <translation>舒適用電器提示訊息1</translation>
    </message>
    <message>
        <source>Conv.Consumers prompt message 2</source>
        <translation>舒適用電器提示訊息2</translation>
    </message>
    <message>
        <source>Conv.Consumers prompt message 3</source>
        <translation>舒適用電器提示訊息3</translation>
    </message>
    <message>
        <source>Front radar working status</source>
        <translation>前雷達工作狀態</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>綠色</translation>
    </message>
    <message>
        <source>Key brightness value</source>
        <translation>按鍵亮度值</translation>
    </message>
    <message>
        <source>PM 2.5 Value in tthe ccar</source>
        <translation>車內PM2.5值</translation>
    </message>
    <message>
        <source>Park assist system status</source>
        <translation>停車輔助系統狀態</translation>
    </message>
    <message>
        <source>Radar sound state</source>
        <translation>雷達聲音狀態</translation>
    </message>
    <message>
        <source>Rear radar working status</source>
        <translation>後雷達工作狀態</translation>
    </message>
    <message>
        <source>Screen brightness value</source>
        <translation>螢幕亮度值</translation>
    </message>
    <message>
        <source>Start-stop system</source>
        <translation>啟停系統</translation>
    </message>
    <message>
        <source>Vehicle reminder 1</source>
        <translation>車輛提醒1</translation>
    </message>
    <message>
        <source>Vehicle reminder 2</source>
        <translation>車輛提醒2</translation>
    </message>
    <message>
        <source>Vehicle reminder 3</source>
        <translation>車輛提醒3</translation>
    </message>
    <message>
        <source>Vehicle reminder 4</source>
        <translation>車輛提醒4</translation>
    </message>
    <message>
        <source>Vehicle reminder 5</source>
        <translation>車輛提醒5</translation>
    </message>
    <message>
        <source>Vehicle reminder 6</source>
        <translation>車輛提醒6</translation>
    </message>
    <message>
        <source>Vocalize</source>
        <translation>發聲</translation>
    </message>
    <message>
        <source>activated</source>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>dark red</source>
        <translation>暗紅色</translation>
    </message>
    <message>
        <source>deactivated</source>
        <translation>未啟用</translation>
    </message>
    <message>
        <source>open</source>
        <translation>開啟</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>紫色</translation>
    </message>
    <message>
        <source>red</source>
        <translation>紅色</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>white</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>黃色</translation>
    </message>
</context>
<context>
    <name>CarInfoItem28_2</name>
    <message>
        <source>Front And Back Balance</source>
        <translation>前後平衡</translation>
    </message>
    <message>
        <source>Left And Right Balance</source>
        <translation>左右平衡</translation>
    </message>
    <message>
        <source>Midrange</source>
        <translation>中音</translation>
    </message>
    <message>
        <source>Speed Adjustment</source>
        <translation>速度音量調節</translation>
    </message>
    <message>
        <source>Treble</source>
        <translation>高音</translation>
    </message>
    <message>
        <source>bass</source>
        <translation>低音</translation>
    </message>
    <message>
        <source>volume</source>
        <translation>音量</translation>
    </message>
</context>
<context>
    <name>CarInfoItem28_3</name>
    <message>
        <source>10 amps</source>
        <translation>10A</translation>
    </message>
    <message>
        <source>13 amps</source>
        <translation>13A</translation>
    </message>
    <message>
        <source>5 amps</source>
        <translation>5A</translation>
    </message>
    <message>
        <source>ACTIVATED</source>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>所有車門</translation>
    </message>
    <message>
        <source>All regions</source>
        <translation>所有區域</translation>
    </message>
    <message>
        <source>All windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Ambient lighting-ambient lighting</source>
        <translation>氛圍燈-氛圍燈</translation>
    </message>
    <message>
        <source>Ambient lighting-car light color</source>
        <translation>氛圍燈-燈光顏色</translation>
    </message>
    <message>
        <source>Ambient lighting-front ambient lighting</source>
        <translation>氛圍燈-前部氛圍燈</translation>
    </message>
    <message>
        <source>Ambient lighting-roof ambient lighting</source>
        <translation>氛圍燈-車頂氛圍燈</translation>
    </message>
    <message>
        <source>America</source>
        <translation>英語（美國）</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音響</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>德語（奧地利）</translation>
    </message>
    <message>
        <source>Battery charge mode</source>
        <translation>電池充電模式</translation>
    </message>
    <message>
        <source>Battery maintenance</source>
        <translation>電池維護</translation>
    </message>
    <message>
        <source>Big</source>
        <translation>大</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>藍色</translation>
    </message>
    <message>
        <source>Body MODE button</source>
        <translation>車身模式按鍵</translation>
    </message>
    <message>
        <source>Body MODE display</source>
        <translation>車身模式顯示</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>波斯尼亞語</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>葡萄牙語（巴西）</translation>
    </message>
    <message>
        <source>Britain</source>
        <translation>英語（英國）</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>保加利亞語</translation>
    </message>
    <message>
        <source>China</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Comfort</source>
        <translation>舒適</translation>
    </message>
    <message>
        <source>Comfortable</source>
        <translation>舒適</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>捷克語</translation>
    </message>
    <message>
        <source>Deactivate</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>丹麥語</translation>
    </message>
    <message>
        <source>Destination information</source>
        <translation>目的地資訊</translation>
    </message>
    <message>
        <source>Distance monitoring</source>
        <translation>車距監控</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>駕駛員</translation>
    </message>
    <message>
        <source>Driver 2</source>
        <translation>駕駛員2</translation>
    </message>
    <message>
        <source>Driver 3</source>
        <translation>駕駛員3</translation>
    </message>
    <message>
        <source>Driver assistance 2-ACC travel program</source>
        <translation>駕駛輔助2-ACC行駛程式</translation>
    </message>
    <message>
        <source>Driver assistance 2-ACC vehicle distance</source>
        <translation>駕駛輔助2-ACC車距</translation>
    </message>
    <message>
        <source>Driver assistance 2-blind spot monitoring</source>
        <translation>駕駛輔助2-盲點監測</translation>
    </message>
    <message>
        <source>Driver assistance 2-brightness ofLane change assist system</source>
        <translation>駕駛輔助2-變換車道輔助亮度</translation>
    </message>
    <message>
        <source>Driver assistance 2-display distance alarm</source>
        <translation>駕駛輔助2-顯示車距警示</translation>
    </message>
    <message>
        <source>Driver assistance 2-early warning</source>
        <translation>駕駛輔助2-預警</translation>
    </message>
    <message>
        <source>Driver assistance 2-front assist system activated</source>
        <translation>駕駛輔助2-前部輔助已啟用</translation>
    </message>
    <message>
        <source>Driver assistance 2-steep slope descent system</source>
        <translation>駕駛輔助2-陡坡緩降</translation>
    </message>
    <message>
        <source>Driver assistance 2-vehicle distance last selected</source>
        <translation>駕駛輔助2-上次所選車距</translation>
    </message>
    <message>
        <source>Driver assistance 2-warning reminder</source>
        <translation>駕駛輔助2-警告提醒</translation>
    </message>
    <message>
        <source>Drivers seat</source>
        <translation>駕駛座</translation>
    </message>
    <message>
        <source>Driving assistance system-active lane guide is available</source>
        <translation>駕駛輔助-主動車道引導可用</translation>
    </message>
    <message>
        <source>Driving assistance system-adaptive lane guide</source>
        <translation>駕駛輔助-自適應車道引導</translation>
    </message>
    <message>
        <source>Driving assistance system-fatigue driving</source>
        <translation>駕駛輔助-疲勞駕駛</translation>
    </message>
    <message>
        <source>Driving assistance system-preventive occupant protection system</source>
        <translation>駕駛輔助-預防性乘員保護</translation>
    </message>
    <message>
        <source>Driving mode</source>
        <translation>駕駛模式</translation>
    </message>
    <message>
        <source>Driving time</source>
        <translation>駕駛時間</translation>
    </message>
    <message>
        <source>E-MODE </source>
        <translation>E-MODE </translation>
    </message>
    <message>
        <source>ECO</source>
        <translation>ECO</translation>
    </message>
    <message>
        <source>ESC movement</source>
        <translation>ESC運動</translation>
    </message>
    <message>
        <source>ESC system</source>
        <translation>ESC系統</translation>
    </message>
    <message>
        <source>E_MODE mode</source>
        <translation>E_MODE模式</translation>
    </message>
    <message>
        <source>Early</source>
        <translation>早</translation>
    </message>
    <message>
        <source>Eco</source>
        <translation>經濟</translation>
    </message>
    <message>
        <source>Electric-battery charging offline</source>
        <translation>電動-電池離線充電</translation>
    </message>
    <message>
        <source>Electric-in car temperature</source>
        <translation>電動-車內溫度</translation>
    </message>
    <message>
        <source>Electric-maximum charging current</source>
        <translation>電動-最大充電電流</translation>
    </message>
    <message>
        <source>Electric-use battery powered air onditioning</source>
        <translation>電動-電池供電空調</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>愛沙尼亞語</translation>
    </message>
    <message>
        <source>Extremely small</source>
        <translation>極小</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>芬蘭語</translation>
    </message>
    <message>
        <source>Forward looking</source>
        <translation>前視</translation>
    </message>
    <message>
        <source>France</source>
        <translation>法語</translation>
    </message>
    <message>
        <source>Fully loaded</source>
        <translation>滿載</translation>
    </message>
    <message>
        <source>GTE</source>
        <translation>GTE</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>德語</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>希臘語</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>綠色</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>匈牙利語</translation>
    </message>
    <message>
        <source>Hybrid</source>
        <translation>混動</translation>
    </message>
    <message>
        <source>Individual climate</source>
        <translation>個性化空調</translation>
    </message>
    <message>
        <source>Individual engine</source>
        <translation>個性化引擎</translation>
    </message>
    <message>
        <source>Individual frontLight</source>
        <translation>個性化前照燈</translation>
    </message>
    <message>
        <source>Individual steering</source>
        <translation>個性化轉向</translation>
    </message>
    <message>
        <source>Instrument displayon theLeft</source>
        <translation>儀表左側顯示</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>義大利語</translation>
    </message>
    <message>
        <source>KM/KWH</source>
        <translation>KM/KWH</translation>
    </message>
    <message>
        <source>KWH/100KM</source>
        <translation>KWH/100KM</translation>
    </message>
    <message>
        <source>Keep Right</source>
        <translation>靠右行駛</translation>
    </message>
    <message>
        <source>Keep left</source>
        <translation>靠左行駛</translation>
    </message>
    <message>
        <source>Korea</source>
        <translation>韓語</translation>
    </message>
    <message>
        <source>L</source>
        <translation>L</translation>
    </message>
    <message>
        <source>L/100km</source>
        <translation>L/100km</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>晚</translation>
    </message>
    <message>
        <source>Lateral traffic</source>
        <translation>橫向交通</translation>
    </message>
    <message>
        <source>Left view</source>
        <translation>左視</translation>
    </message>
    <message>
        <source>Left view mode</source>
        <translation>左視模式</translation>
    </message>
    <message>
        <source>Light Colour</source>
        <translation>燈光顏色</translation>
    </message>
    <message>
        <source>Light-Instrument/switch lighting</source>
        <translation>燈光-儀表/開關照明</translation>
    </message>
    <message>
        <source>Light-automatic driving lights</source>
        <translation>燈光-自動行車燈</translation>
    </message>
    <message>
        <source>Light-away from home mode</source>
        <translation>燈光-離家模式</translation>
    </message>
    <message>
        <source>Light-background lighting</source>
        <translation>燈光-背景照明</translation>
    </message>
    <message>
        <source>Light-daytime running lights</source>
        <translation>燈光-日間行車燈</translation>
    </message>
    <message>
        <source>Light-door ambient lighting</source>
        <translation>燈光-車門氛圍燈</translation>
    </message>
    <message>
        <source>Light-dynamic headlight follower</source>
        <translation>燈光-動態隨動頭燈</translation>
    </message>
    <message>
        <source>Light-headlight distance</source>
        <translation>燈光-頭燈照明距離</translation>
    </message>
    <message>
        <source>Light-home mode</source>
        <translation>燈光-回家模式</translation>
    </message>
    <message>
        <source>Light-lane change flasher</source>
        <translation>燈光-變換車道方向燈</translation>
    </message>
    <message>
        <source>Light-space pace adjusting lights</source>
        <translation>燈光-空間照明調節</translation>
    </message>
    <message>
        <source>Light-travel mode</source>
        <translation>燈光-旅行模式</translation>
    </message>
    <message>
        <source>Light-turn on time</source>
        <translation>燈光-開啟時間</translation>
    </message>
    <message>
        <source>Light_dynamic lighting assist</source>
        <translation>燈光-動態照明輔助</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>立陶宛語</translation>
    </message>
    <message>
        <source>MFD-Comfortable Appliances</source>
        <translation>MFD-舒適用電器</translation>
    </message>
    <message>
        <source>MFD-average fuel consumption</source>
        <translation>MFD-平均油耗</translation>
    </message>
    <message>
        <source>MFD-average speed</source>
        <translation>MFD-平均車速</translation>
    </message>
    <message>
        <source>MFD-current fuel consumption</source>
        <translation>MFD-目前油耗</translation>
    </message>
    <message>
        <source>MFD-digital speed display</source>
        <translation>MFD-數字車速顯示</translation>
    </message>
    <message>
        <source>MFD-driven distance</source>
        <translation>MFD-行駛里程</translation>
    </message>
    <message>
        <source>MFD-driving time</source>
        <translation>MFD-行駛時間</translation>
    </message>
    <message>
        <source>MFD-economic operation tips</source>
        <translation>MFD-經濟駕駛提示</translation>
    </message>
    <message>
        <source>MFD-oil temperature</source>
        <translation>MFD-機油溫度</translation>
    </message>
    <message>
        <source>MFD-speed aalarm</source>
        <translation>MFD-超速警示</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Meter mode</source>
        <translation>儀表模式</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>西班牙語（墨西哥）</translation>
    </message>
    <message>
        <source>Mileage</source>
        <translation>里程</translation>
    </message>
    <message>
        <source>Mirrors and wipers-automatic rain wiper</source>
        <translation>後視鏡和雨刷-自動雨刷</translation>
    </message>
    <message>
        <source>Mirrors and wipers-parked off the mirror</source>
        <translation>後視鏡和雨刷-駐車摺疊後視鏡</translation>
    </message>
    <message>
        <source>Mirrors and wipers-rear window wiper when reverse gear</source>
        <translation>後視鏡和雨刷-倒車時後窗雨刷</translation>
    </message>
    <message>
        <source>Mirrors and wipers-reversing mirror is lowered profile</source>
        <translation>後視鏡和雨刷-倒車時後視鏡下翻</translation>
    </message>
    <message>
        <source>Mirrors and wipers-synchronization adjustment mirror</source>
        <translation>後視鏡和雨刷-後視鏡同步調節</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>荷蘭語</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>挪威語</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Off-road</source>
        <translation>越野</translation>
    </message>
    <message>
        <source>Off-road air conditioning</source>
        <translation>越野空調</translation>
    </message>
    <message>
        <source>Off-road downhill assist</source>
        <translation>越野下坡輔助</translation>
    </message>
    <message>
        <source>Off-road drive device</source>
        <translation>越野驅動裝置</translation>
    </message>
    <message>
        <source>Off-road four wheel drive</source>
        <translation>越野四驅</translation>
    </message>
    <message>
        <source>Off-road parking assist</source>
        <translation>越野停車輔助</translation>
    </message>
    <message>
        <source>Off-road personalization</source>
        <translation>越野個性化</translation>
    </message>
    <message>
        <source>Off-road ramp start</source>
        <translation>越野上坡起步</translation>
    </message>
    <message>
        <source>Off-road turn to</source>
        <translation>越野轉向</translation>
    </message>
    <message>
        <source>Opening and closing-Inductive ail box</source>
        <translation>開閉-感應式行李廂</translation>
    </message>
    <message>
        <source>Opening and closing-aAutomatic lock</source>
        <translation>開閉-自動上鎖</translation>
    </message>
    <message>
        <source>Opening and closing-dDoor unlock</source>
        <translation>開閉-車門解鎖</translation>
    </message>
    <message>
        <source>Opening and closing-easy opening of car windows</source>
        <translation>開閉-便捷開窗</translation>
    </message>
    <message>
        <source>Opening and closing-front window</source>
        <translation>開閉-前車窗</translation>
    </message>
    <message>
        <source>Opening and closing-indoor monitoring system</source>
        <translation>開閉-車內監控系統</translation>
    </message>
    <message>
        <source>Opening and closing-rear eindow</source>
        <translation>開閉-後車窗</translation>
    </message>
    <message>
        <source>Opening and closing-sliding aunroof</source>
        <translation>開閉-滑動天窗</translation>
    </message>
    <message>
        <source>Opening and closing-voice feedback</source>
        <translation>開閉-聲音回饋</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>西班牙語（巴拉圭）</translation>
    </message>
    <message>
        <source>Parallel parking</source>
        <translation>側方停車</translation>
    </message>
    <message>
        <source>Parking and ahunting-back tone</source>
        <translation>停車和調車-後部提示音</translation>
    </message>
    <message>
        <source>Parking and shunting-Front tone</source>
        <translation>停車和調車-前部提示音</translation>
    </message>
    <message>
        <source>Parking and shunting-activation</source>
        <translation>停車和調車-啟用</translation>
    </message>
    <message>
        <source>Parking and shunting-automatic activation</source>
        <translation>停車和調車-自動啟用</translation>
    </message>
    <message>
        <source>Parking and shunting-exit parking assist</source>
        <translation>停車和調車-出庫輔助</translation>
    </message>
    <message>
        <source>Parking and shunting-front volume</source>
        <translation>停車和調車-前部音量</translation>
    </message>
    <message>
        <source>Parking and shunting-panoramic video</source>
        <translation>停車和調車-環景影像</translation>
    </message>
    <message>
        <source>Parking and shunting-parking brake function</source>
        <translation>停車和調車-駐車煞車功能</translation>
    </message>
    <message>
        <source>Parking and shunting-radar thumbnail</source>
        <translation>停車和調車-雷達縮圖</translation>
    </message>
    <message>
        <source>Parking and shunting-rear volume</source>
        <translation>停車和調車-後部音量</translation>
    </message>
    <message>
        <source>Parking and shunting-reverse mode</source>
        <translation>停車和調車-倒車模式</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>波蘭語</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>葡萄牙語</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>較晚</translation>
    </message>
    <message>
        <source>Press down</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>紅色</translation>
    </message>
    <message>
        <source>Remote keyless memory match</source>
        <translation>遙控鑰匙記憶匹配</translation>
    </message>
    <message>
        <source>Reversing radar-brightness value</source>
        <translation>倒車雷達-亮度值</translation>
    </message>
    <message>
        <source>Reversing radar-contrast value</source>
        <translation>倒車雷達-對比度值</translation>
    </message>
    <message>
        <source>Reversing radar-saturated color value</source>
        <translation>倒車雷達-飽和度值</translation>
    </message>
    <message>
        <source>Right instrument display</source>
        <translation>儀表右側顯示</translation>
    </message>
    <message>
        <source>Right view</source>
        <translation>右視</translation>
    </message>
    <message>
        <source>Right view mode</source>
        <translation>右視模式</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>羅馬尼亞語</translation>
    </message>
    <message>
        <source>Russia</source>
        <translation>俄語</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>塞爾維亞語</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>斯洛伐克語</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>斯洛維尼亞語</translation>
    </message>
    <message>
        <source>Snowfield</source>
        <translation>雪地</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>西班牙語</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>運動</translation>
    </message>
    <message>
        <source>Start stop close</source>
        <translation>啟停關閉</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>瑞典語</translation>
    </message>
    <message>
        <source>Tange assign the key to the current user account</source>
        <translation>將鑰匙分配給目前使用者帳戶</translation>
    </message>
    <message>
        <source>Tange key distribution</source>
        <translation>鑰匙分配</translation>
    </message>
    <message>
        <source>Tange personalise</source>
        <translation>個性化設定</translation>
    </message>
    <message>
        <source>Tange user account</source>
        <translation>使用者帳戶</translation>
    </message>
    <message>
        <source>The car key is activated</source>
        <translation>車鑰匙已啟用</translation>
    </message>
    <message>
        <source>Timely</source>
        <translation>適中</translation>
    </message>
    <message>
        <source>Tire settings-Speeding reminder</source>
        <translation>輪胎設定-超速提醒</translation>
    </message>
    <message>
        <source>Tire settings-direct tire pressure monitoring</source>
        <translation>輪胎設定-直接式胎壓監測</translation>
    </message>
    <message>
        <source>Tire settings-speed alarm</source>
        <translation>輪胎設定-車速警示</translation>
    </message>
    <message>
        <source>Tire settings-speed unit</source>
        <translation>輪胎設定-速度單位</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其語</translation>
    </message>
    <message>
        <source>Two-sided mode</source>
        <translation>雙側模式</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>烏克蘭語</translation>
    </message>
    <message>
        <source>Unilateral doors</source>
        <translation>單側車門</translation>
    </message>
    <message>
        <source>Vertical parking</source>
        <translation>垂直停車</translation>
    </message>
    <message>
        <source>Visitor</source>
        <translation>訪客</translation>
    </message>
    <message>
        <source>Warm white</source>
        <translation>暖白色</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>accelerate</source>
        <translation>加速</translation>
    </message>
    <message>
        <source>activation</source>
        <translation>啟用</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>藍色</translation>
    </message>
    <message>
        <source>classic</source>
        <translation>經典</translation>
    </message>
    <message>
        <source>closure</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>compass</source>
        <translation>指南針</translation>
    </message>
    <message>
        <source>consumption</source>
        <translation>消耗</translation>
    </message>
    <message>
        <source>customize</source>
        <translation>自訂</translation>
    </message>
    <message>
        <source>dark blue</source>
        <translation>深藍色</translation>
    </message>
    <message>
        <source>disappear</source>
        <translation>消失</translation>
    </message>
    <message>
        <source>driven distance</source>
        <translation>行駛里程</translation>
    </message>
    <message>
        <source>economy</source>
        <translation>經濟</translation>
    </message>
    <message>
        <source>economy+</source>
        <translation>經濟+</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>freed</source>
        <translation>已釋放</translation>
    </message>
    <message>
        <source>gal(UK)</source>
        <translation>gal(UK)</translation>
    </message>
    <message>
        <source>gal(US)</source>
        <translation>gal(US)</translation>
    </message>
    <message>
        <source>gem blue</source>
        <translation>寶石藍</translation>
    </message>
    <message>
        <source>great</source>
        <translation>極大</translation>
    </message>
    <message>
        <source>in advance</source>
        <translation>較早</translation>
    </message>
    <message>
        <source>invalid</source>
        <translation>無效</translation>
    </message>
    <message>
        <source>kPa</source>
        <translation>kPa</translation>
    </message>
    <message>
        <source>kWh/100km</source>
        <translation>kWh/100km</translation>
    </message>
    <message>
        <source>km</source>
        <translation>km</translation>
    </message>
    <message>
        <source>km/L</source>
        <translation>km/L</translation>
    </message>
    <message>
        <source>km/h</source>
        <translation>km/h</translation>
    </message>
    <message>
        <source>km/kWh</source>
        <translation>km/kWh</translation>
    </message>
    <message>
        <source>light green</source>
        <translation>淺綠色</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>mi</source>
        <translation>mi</translation>
    </message>
    <message>
        <source>mi/kWh</source>
        <translation>mi/kWh</translation>
    </message>
    <message>
        <source>mpg(UK)</source>
        <translation>mpg(UK)</translation>
    </message>
    <message>
        <source>mpg(US)</source>
        <translation>mpg(US)</translation>
    </message>
    <message>
        <source>mph</source>
        <translation>mph</translation>
    </message>
    <message>
        <source>navigation</source>
        <translation>導航</translation>
    </message>
    <message>
        <source>personalise</source>
        <translation>個性化</translation>
    </message>
    <message>
        <source>pink</source>
        <translation>粉色</translation>
    </message>
    <message>
        <source>pop up</source>
        <translation>彈出</translation>
    </message>
    <message>
        <source>psi</source>
        <translation>psi</translation>
    </message>
    <message>
        <source>rearview</source>
        <translation>後視</translation>
    </message>
    <message>
        <source>single doors</source>
        <translation>單門</translation>
    </message>
    <message>
        <source>small</source>
        <translation>小</translation>
    </message>
    <message>
        <source>sports</source>
        <translation>運動</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>tangerine</source>
        <translation>橘色</translation>
    </message>
    <message>
        <source>unit-fuel consumption</source>
        <translation>單位-油耗</translation>
    </message>
    <message>
        <source>unit-mileage</source>
        <translation>單位-里程</translation>
    </message>
    <message>
        <source>unit-power consumption</source>
        <translation>單位-電耗</translation>
    </message>
    <message>
        <source>unit-power consumption(PurePower)</source>
        <translation>單位-電耗（純電）</translation>
    </message>
    <message>
        <source>unit-speed</source>
        <translation>單位-車速</translation>
    </message>
    <message>
        <source>unit-temperature</source>
        <translation>單位-溫度</translation>
    </message>
    <message>
        <source>unit-tire pressure</source>
        <translation>單位-胎壓</translation>
    </message>
    <message>
        <source>unit-volume</source>
        <translation>單位-容積</translation>
    </message>
    <message>
        <source>view 1</source>
        <translation>視圖1</translation>
    </message>
    <message>
        <source>view 2</source>
        <translation>視圖2</translation>
    </message>
    <message>
        <source>view 3</source>
        <translation>視圖3</translation>
    </message>
    <message>
        <source>wait</source>
        <translation>等待</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>黃色</translation>
    </message>
    <message>
        <source>℃</source>
        <translation>℃</translation>
    </message>
    <message>
        <source>℉</source>
        <translation>℉</translation>
    </message>
</context>
<context>
    <name>CarInfoItem28_4</name>
    <message>
        <source>Average consumption since refueling</source>
        <translation>加油後平均油耗</translation>
    </message>
    <message>
        <source>Average consumption since start</source>
        <translation>啟動後平均油耗</translation>
    </message>
    <message>
        <source>Average power consumption since refueling</source>
        <translation>加油後平均電耗</translation>
    </message>
    <message>
        <source>Average power consumption since startup</source>
        <translation>啟動後平均電耗</translation>
    </message>
    <message>
        <source>Average speed since refueling</source>
        <translation>加油後平均車速</translation>
    </message>
    <message>
        <source>Average vehicle speed since start</source>
        <translation>啟動後平均車速</translation>
    </message>
    <message>
        <source>Comfortable Appliances</source>
        <translation>舒適用電器</translation>
    </message>
    <message>
        <source>Distance since start</source>
        <translation>啟動後行駛里程</translation>
    </message>
    <message>
        <source>Driving time since start</source>
        <translation>啟動後行駛時間</translation>
    </message>
    <message>
        <source>Electric range</source>
        <translation>純電續航里程</translation>
    </message>
    <message>
        <source>Engine Oil Display</source>
        <translation>機油顯示</translation>
    </message>
    <message>
        <source>Fuel mileage</source>
        <translation>燃油續航里程</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Long driving Time</source>
        <translation>長時行駛時間</translation>
    </message>
    <message>
        <source>Long term average consumption</source>
        <translation>長期平均油耗</translation>
    </message>
    <message>
        <source>Long term average speed</source>
        <translation>長期平均車速</translation>
    </message>
    <message>
        <source>Long term mileage</source>
        <translation>長期行駛里程</translation>
    </message>
    <message>
        <source>Long withAn average power consumption</source>
        <translation>長期平均電耗</translation>
    </message>
    <message>
        <source>Mileage since refueling</source>
        <translation>加油後行駛里程</translation>
    </message>
    <message>
        <source>Total cruising range</source>
        <translation>總續航里程</translation>
    </message>
    <message>
        <source>Travel time since refueling</source>
        <translation>加油後行駛時間</translation>
    </message>
</context>
<context>
    <name>CarInfoItem28_5</name>
    <message>
        <source>Energy recovery value at</source>
        <translation>能量回收值：第</translation>
    </message>
    <message>
        <source> %1 </source>
        <translation> %1 </translation>
    </message>
    <message>
        <source>minute</source>
        <translation>分鐘</translation>
    </message>
    <message>
        <source>Battery life</source>
        <translation>純電續航里程</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>亮</translation>
    </message>
    <message>
        <source>Co-drive</source>
        <translation>聯合驅動</translation>
    </message>
    <message>
        <source>Electric drive</source>
        <translation>純電驅動</translation>
    </message>
    <message>
        <source>Endurance potential</source>
        <translation>續航潛力</translation>
    </message>
    <message>
        <source>Energy flow</source>
        <translation>能量流</translation>
    </message>
    <message>
        <source>Energy flow from high voltage battery</source>
        <translation>高壓電池輸出能量流</translation>
    </message>
    <message>
        <source>Energy recovery</source>
        <translation>能量回收</translation>
    </message>
    <message>
        <source>Internal combustion engine drive</source>
        <translation>內燃機驅動</translation>
    </message>
    <message>
        <source>Proportion</source>
        <translation>比例</translation>
    </message>
    <message>
        <source>TEnergy flow to high-voltage battery</source>
        <translation>流向高壓電池的能量流</translation>
    </message>
    <message>
        <source>This energy recovery value</source>
        <translation>本次能量回收值</translation>
    </message>
    <message>
        <source>Tire drive</source>
        <translation>車輪驅動</translation>
    </message>
    <message>
        <source>battery power</source>
        <translation>電池電量</translation>
    </message>
    <message>
        <source>driven distance</source>
        <translation>行駛里程</translation>
    </message>
    <message>
        <source>engine</source>
        <translation>引擎</translation>
    </message>
    <message>
        <source>none</source>
        <translation>無</translation>
    </message>
    <message>
        <source>not bright</source>
        <translation>不亮</translation>
    </message>
    <message>
        <source>zero emission</source>
        <translation>零排放</translation>
    </message>
</context>
<context>
    <name>CarInfoItem28_6</name>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Front left tire</source>
        <translation>左前輪胎</translation>
    </message>
    <message>
        <source>Front right tire</source>
        <translation>右前輪胎</translation>
    </message>
    <message>
        <source>Left front tire pressure value</source>
        <translation>左前胎壓值</translation>
    </message>
    <message>
        <source>Left rear tire pressure value</source>
        <translation>左後胎壓值</translation>
    </message>
    <message>
        <source>No display</source>
        <translation>不顯示</translation>
    </message>
    <message>
        <source>Please check tire pressure</source>
        <translation>請檢查胎壓</translation>
    </message>
    <message>
        <source>Rear left tire</source>
        <translation>左後輪胎</translation>
    </message>
    <message>
        <source>Rear right tire</source>
        <translation>右後輪胎</translation>
    </message>
    <message>
        <source>Right front tire pressure value</source>
        <translation>右前胎壓值</translation>
    </message>
    <message>
        <source>Right rear tire pressure value</source>
        <translation>右後胎壓值</translation>
    </message>
    <message>
        <source>TPMS</source>
        <translation>TPMS</translation>
    </message>
    <message>
        <source>Tire loss</source>
        <translation>輪胎失壓</translation>
    </message>
    <message>
        <source>Tire pressure is normal</source>
        <translation>胎壓正常</translation>
    </message>
    <message>
        <source>Tire pressure is too low</source>
        <translation>胎壓過低</translation>
    </message>
    <message>
        <source>abnormal</source>
        <translation>異常</translation>
    </message>
    <message>
        <source>alarm type</source>
        <translation>警示類型</translation>
    </message>
    <message>
        <source>normal</source>
        <translation>正常</translation>
    </message>
</context>
<context>
    <name>CarInfoItem28_7</name>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Oil change service days</source>
        <translation>換油保養天數</translation>
    </message>
    <message>
        <source>Oil change service distance</source>
        <translation>換油保養里程</translation>
    </message>
    <message>
        <source>Volkswagen inspection days</source>
        <translation>大眾檢查天數</translation>
    </message>
    <message>
        <source>Volkswagen inspection distance</source>
        <translation>大眾檢查里程</translation>
    </message>
    <message>
        <source>Wiper blade in maintenance position</source>
        <translation>雨刷片處於維護位置</translation>
    </message>
</context>
<context>
    <name>CarInfoItem28_8</name>
    <message>
        <source>Location %1-</source>
        <translation>位置%1-</translation>
    </message>
    <message>
        <source>10A</source>
        <translation>10A</translation>
    </message>
    <message>
        <source>13A</source>
        <translation>13A</translation>
    </message>
    <message>
        <source>5A</source>
        <translation>5A</translation>
    </message>
    <message>
        <source>Air conditioning control</source>
        <translation>空調控制</translation>
    </message>
    <message>
        <source>Battery charging online</source>
        <translation>充電目標電量</translation>
    </message>
    <message>
        <source>Bullet frame</source>
        <translation>彈窗</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>未選</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>充電</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>已選</translation>
    </message>
    <message>
        <source>Departure hour</source>
        <translation>出發時間（時）</translation>
    </message>
    <message>
        <source>Departure minutes</source>
        <translation>出發時間（分）</translation>
    </message>
    <message>
        <source>Electric management-Location 1</source>
        <translation>電能管理-位置1</translation>
    </message>
    <message>
        <source>Electric management-Location 2</source>
        <translation>電能管理-位置2</translation>
    </message>
    <message>
        <source>Electric management-Location 3</source>
        <translation>電能管理-位置3</translation>
    </message>
    <message>
        <source>End hour of night time</source>
        <translation>夜間時段結束（時）</translation>
    </message>
    <message>
        <source>End minute of night session</source>
        <translation>夜間時段結束（分）</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Maximum charging current</source>
        <translation>最大充電電流</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Night time current</source>
        <translation>夜間電流</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Start hour of night session</source>
        <translation>夜間時段開始（時）</translation>
    </message>
    <message>
        <source>Start minute of night session</source>
        <translation>夜間時段開始（分）</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>disappear</source>
        <translation>消失</translation>
    </message>
    <message>
        <source>frequency</source>
        <translation>重複方式</translation>
    </message>
    <message>
        <source>max</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>once</source>
        <translation>一次</translation>
    </message>
    <message>
        <source>repeat</source>
        <translation>重複</translation>
    </message>
</context>
<context>
    <name>CarInfoItem30_1</name>
    <message>
        <source>BAR</source>
        <translation>BAR</translation>
    </message>
    <message>
        <source>Don&apos;t show</source>
        <translation>不顯示</translation>
    </message>
    <message>
        <source>Have TPMS equipment</source>
        <translation>有胎壓監測裝置</translation>
    </message>
    <message>
        <source>Instantaneous power consumption</source>
        <translation>瞬時電耗</translation>
    </message>
    <message>
        <source>KPA</source>
        <translation>KPA</translation>
    </message>
    <message>
        <source>Left front tire pressure value</source>
        <translation>左前胎壓值</translation>
    </message>
    <message>
        <source>Left rear tire pressure value</source>
        <translation>左後胎壓值</translation>
    </message>
    <message>
        <source>Line up</source>
        <translation>排列顯示</translation>
    </message>
    <message>
        <source>No TPMS device</source>
        <translation>無胎壓監測裝置</translation>
    </message>
    <message>
        <source>One way distance</source>
        <translation>單程里程</translation>
    </message>
    <message>
        <source>PSI</source>
        <translation>PSI</translation>
    </message>
    <message>
        <source>Right front tire pressure value</source>
        <translation>右前胎壓值</translation>
    </message>
    <message>
        <source>Right rear tire pressure value</source>
        <translation>右後胎壓值</translation>
    </message>
    <message>
        <source>Show a car</source>
        <translation>顯示車輛</translation>
    </message>
    <message>
        <source>Show alarm screen</source>
        <translation>顯示警示畫面</translation>
    </message>
    <message>
        <source>Spare tire</source>
        <translation>備胎</translation>
    </message>
    <message>
        <source>TPMS alarm screen</source>
        <translation>胎壓警示畫面</translation>
    </message>
    <message>
        <source>TPMS spare tire</source>
        <translation>胎壓監測備胎</translation>
    </message>
    <message>
        <source>TPMS status information</source>
        <translation>胎壓監測狀態資訊</translation>
    </message>
    <message>
        <source>TPMS tire display mode</source>
        <translation>胎壓輪胎顯示模式</translation>
    </message>
    <message>
        <source>TPMS unit</source>
        <translation>胎壓單位</translation>
    </message>
    <message>
        <source>normal status</source>
        <translation>正常狀態</translation>
    </message>
    <message>
        <source>show</source>
        <translation>顯示</translation>
    </message>
</context>
<context>
    <name>CarInfoItem30_2</name>
    <message>
        <source>Battery driven motor</source>
        <translation>電池驅動馬達</translation>
    </message>
    <message>
        <source>Battery power</source>
        <translation>電池電量</translation>
    </message>
    <message>
        <source>Engine drive motor</source>
        <translation>引擎驅動馬達</translation>
    </message>
    <message>
        <source>Engine driven wheels</source>
        <translation>引擎驅動車輪</translation>
    </message>
    <message>
        <source>Have</source>
        <translation>有</translation>
    </message>
    <message>
        <source>Hybrid electric vehicle</source>
        <translation>混合動力車</translation>
    </message>
    <message>
        <source>Motor drive battery</source>
        <translation>馬達給電池充電</translation>
    </message>
    <message>
        <source>Motor drive wheels</source>
        <translation>馬達驅動車輪</translation>
    </message>
    <message>
        <source>Wheel drive motor</source>
        <translation>車輪驅動馬達</translation>
    </message>
    <message>
        <source>without</source>
        <translation>無</translation>
    </message>
</context>
<context>
    <name>CarInfoItem30_3</name>
    <message>
        <source>exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source> 15 Camry, 15 Reiz</source>
        <translation> 15款凱美瑞、15款銳志</translation>
    </message>
    <message>
        <source>05~09 old Ruizhi (automatic air conditioner)</source>
        <translation>05~09款老銳志（自動空調）</translation>
    </message>
    <message>
        <source>07~15 models of Lancool top (4-zone automatic air conditioning)</source>
        <translation>07~15款蘭德酷路澤頂配（四區自動空調）</translation>
    </message>
    <message>
        <source>09 Camry (08-11)</source>
        <translation>09款凱美瑞（08-11）</translation>
    </message>
    <message>
        <source>09 Highlander Manual Air Conditioner</source>
        <translation>09款漢蘭達手動空調</translation>
    </message>
    <message>
        <source>09 Highlander automatic air conditioner</source>
        <translation>09款漢蘭達自動空調</translation>
    </message>
    <message>
        <source>09~12 old RAV4 (automatic air conditioner)</source>
        <translation>09~12款老RAV4（自動空調）</translation>
    </message>
    <message>
        <source>12 Camry models, 10-14 Domineering automatic air conditioners</source>
        <translation>12款凱美瑞、10-14款霸道自動空調</translation>
    </message>
    <message>
        <source>12 LAND CRUISEs</source>
        <translation>12款蘭德酷路澤</translation>
    </message>
    <message>
        <source>13 top models of Reiz (automatic air conditioner)</source>
        <translation>13款銳志頂配（自動空調）</translation>
    </message>
    <message>
        <source>13th generation crown (10-12 styles)</source>
        <translation>第十三代皇冠（10-12款）</translation>
    </message>
    <message>
        <source>14 Domineering Manual Air Conditioning Models</source>
        <translation>14款霸道手動空調</translation>
    </message>
    <message>
        <source>14 Tundra (Automatic Air Conditioning)</source>
        <translation>14款坦途（自動空調）</translation>
    </message>
    <message>
        <source>14 Tundra (manual air conditioner)</source>
        <translation>14款坦途（手動空調）</translation>
    </message>
    <message>
        <source>14 ​​models of Corolla (automatic air conditioning)</source>
        <translation>14款卡羅拉（自動空調）</translation>
    </message>
    <message>
        <source>15S</source>
        <translation>15S</translation>
    </message>
    <message>
        <source>15~18 models Highlander automatic air conditioner</source>
        <translation>15~18款漢蘭達自動空調</translation>
    </message>
    <message>
        <source>15~18 models Highlander manual air conditioner</source>
        <translation>15~18款漢蘭達手動空調</translation>
    </message>
    <message>
        <source>16 LAND CRUISE, 12 Reiz</source>
        <translation>16款蘭德酷路澤、12款銳志</translation>
    </message>
    <message>
        <source>16~18 RAV4 Rongfang (Automatic Air Conditioning)</source>
        <translation>16~18款RAV4榮放（自動空調）</translation>
    </message>
    <message>
        <source>18 Camrys (Automatic Air Conditioning)</source>
        <translation>18款凱美瑞（自動空調）</translation>
    </message>
    <message>
        <source>18 Domineering (Automatic Air Conditioning)</source>
        <translation>18款霸道（自動空調）</translation>
    </message>
    <message>
        <source>18 Domineering Manual Air Conditioners</source>
        <translation>18款霸道手動空調</translation>
    </message>
    <message>
        <source>2D display</source>
        <translation>2D顯示</translation>
    </message>
    <message>
        <source>30S</source>
        <translation>30S</translation>
    </message>
    <message>
        <source>3D display</source>
        <translation>3D顯示</translation>
    </message>
    <message>
        <source>7 models of old Corolla (automatic air conditioning)</source>
        <translation>7款老卡羅拉（自動空調）</translation>
    </message>
    <message>
        <source>7.5s</source>
        <translation>7.5s</translation>
    </message>
    <message>
        <source>Amplifier Switch</source>
        <translation>擴大機開關</translation>
    </message>
    <message>
        <source>Azure blue</source>
        <translation>天藍色</translation>
    </message>
    <message>
        <source>Bright orange</source>
        <translation>亮橙色</translation>
    </message>
    <message>
        <source>Color Theme</source>
        <translation>顏色主題</translation>
    </message>
    <message>
        <source>Compass</source>
        <translation>指南針</translation>
    </message>
    <message>
        <source>Compass 2D/3D display</source>
        <translation>指南針2D/3D顯示</translation>
    </message>
    <message>
        <source>Convenience service</source>
        <translation>便捷服務</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>捷克語</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>丹麥語</translation>
    </message>
    <message>
        <source>Dark orange</source>
        <translation>深橙色</translation>
    </message>
    <message>
        <source>Display dynamic track line</source>
        <translation>顯示動態軌跡線</translation>
    </message>
    <message>
        <source>Display static track line</source>
        <translation>顯示靜態軌跡線</translation>
    </message>
    <message>
        <source>Display warning line</source>
        <translation>顯示警示線</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>荷蘭語</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>遠</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation>芬蘭語</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法語</translation>
    </message>
    <message>
        <source>Front Radar Distance</source>
        <translation>前雷達距離</translation>
    </message>
    <message>
        <source>Fuel Consumption Unit</source>
        <translation>油耗單位</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德語</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>希臘語</translation>
    </message>
    <message>
        <source>Have</source>
        <translation>有</translation>
    </message>
    <message>
        <source>Horizontal screen - 22 Highlanders - top configuration (with LCD instrument)</source>
        <translation>橫式螢幕-22款漢蘭達-頂配（帶液晶儀表）</translation>
    </message>
    <message>
        <source>Horizontal screen-18-21 Camry-top configuration (with LCD instrument)</source>
        <translation>橫式螢幕-18-21款凱美瑞-頂配（帶液晶儀表）</translation>
    </message>
    <message>
        <source>Horizontal screen-21 models of Asian lion-top configuration (with LCD instrument)</source>
        <translation>橫式螢幕-21款亞洲獅-頂配（帶液晶儀表）</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation>匈牙利語</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>義大利語</translation>
    </message>
    <message>
        <source>KM/L</source>
        <translation>KM/L</translation>
    </message>
    <message>
        <source>L/100KM</source>
        <translation>L/100KM</translation>
    </message>
    <message>
        <source>Model selection</source>
        <translation>車型選擇</translation>
    </message>
    <message>
        <source>Mute Switch</source>
        <translation>靜音開關</translation>
    </message>
    <message>
        <source>Non-mute</source>
        <translation>非靜音</translation>
    </message>
    <message>
        <source>Northeast</source>
        <translation>東北</translation>
    </message>
    <message>
        <source>Northwest</source>
        <translation>西北</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>挪威語</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Original car panoramic camera node</source>
        <translation>原車環景攝像頭節點</translation>
    </message>
    <message>
        <source>Original car power amplifier node</source>
        <translation>原車擴大機節點</translation>
    </message>
    <message>
        <source>Original car rear seat node</source>
        <translation>原車後排節點</translation>
    </message>
    <message>
        <source>Outside Lighting Off Time</source>
        <translation>車外照明關閉時間</translation>
    </message>
    <message>
        <source>Panorama automatic and non-automatic setting</source>
        <translation>環景自動與非自動設定</translation>
    </message>
    <message>
        <source>Panorama exit</source>
        <translation>環景退出</translation>
    </message>
    <message>
        <source>Panorama trajectory setting</source>
        <translation>環景軌跡設定</translation>
    </message>
    <message>
        <source>Panoramic Cut</source>
        <translation>環景切換</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>波蘭語</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>葡萄牙語</translation>
    </message>
    <message>
        <source>Radar distance behind</source>
        <translation>後雷達距離</translation>
    </message>
    <message>
        <source>Radar setting status</source>
        <translation>雷達設定狀態</translation>
    </message>
    <message>
        <source>Radar switch</source>
        <translation>雷達開關</translation>
    </message>
    <message>
        <source>Radar volume intensity</source>
        <translation>雷達音量強度</translation>
    </message>
    <message>
        <source>Reverse gear mode setting</source>
        <translation>倒檔模式設定</translation>
    </message>
    <message>
        <source>Reverse gear trajectory setting</source>
        <translation>倒檔軌跡設定</translation>
    </message>
    <message>
        <source>Roman</source>
        <translation>羅馬尼亞語</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄語</translation>
    </message>
    <message>
        <source>Set panoramic track</source>
        <translation>設定環景軌跡</translation>
    </message>
    <message>
        <source>Set reversing trajectory</source>
        <translation>設定倒車軌跡</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>簡體中文</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation>斯洛伐克語</translation>
    </message>
    <message>
        <source>Southeast</source>
        <translation>東南</translation>
    </message>
    <message>
        <source>Southwest</source>
        <translation>西南</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙語</translation>
    </message>
    <message>
        <source>Start after parking</source>
        <translation>駐車後啟動</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>瑞典語</translation>
    </message>
    <message>
        <source>Tandem reverse open narrow confirmation Return</source>
        <translation>串聯倒車開啟窄道確認-返回</translation>
    </message>
    <message>
        <source>Tandem reversing open narrow confirmation Agree</source>
        <translation>串聯倒車開啟窄道確認-同意</translation>
    </message>
    <message>
        <source>Track and dynamic trajectory switch</source>
        <translation>軌跡與動態軌跡開關</translation>
    </message>
    <message>
        <source>True East</source>
        <translation>正東</translation>
    </message>
    <message>
        <source>True North</source>
        <translation>正北</translation>
    </message>
    <message>
        <source>True West</source>
        <translation>正西</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其語</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation>烏克蘭語</translation>
    </message>
    <message>
        <source>Zhengnan</source>
        <translation>正南</translation>
    </message>
    <message>
        <source>blue-green</source>
        <translation>藍綠色</translation>
    </message>
    <message>
        <source>language settings</source>
        <translation>語言設定</translation>
    </message>
    <message>
        <source>mute</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>near</source>
        <translation>近</translation>
    </message>
    <message>
        <source>null</source>
        <translation>無</translation>
    </message>
    <message>
        <source>traditional Chinese</source>
        <translation>繁體中文</translation>
    </message>
    <message>
        <source>without</source>
        <translation>無</translation>
    </message>
</context>
<context>
    <name>CarInfoItem30_4</name>
    <message>
        <source>ASL OFF</source>
        <translation>ASL關</translation>
    </message>
    <message>
        <source>ASL ON</source>
        <translation>ASL開</translation>
    </message>
    <message>
        <source>ASL indicator</source>
        <translation>ASL指示</translation>
    </message>
    <message>
        <source>BAL indicator</source>
        <translation>BAL指示</translation>
    </message>
    <message>
        <source>BASS indicator</source>
        <translation>BASS指示</translation>
    </message>
    <message>
        <source>Beep</source>
        <translation>蜂鳴</translation>
    </message>
    <message>
        <source>Current volume</source>
        <translation>目前音量</translation>
    </message>
    <message>
        <source>FAD indicator</source>
        <translation>FAD指示</translation>
    </message>
    <message>
        <source>Have</source>
        <translation>有</translation>
    </message>
    <message>
        <source>Loopback sound</source>
        <translation>迴環聲音</translation>
    </message>
    <message>
        <source>MID indicator</source>
        <translation>MID指示</translation>
    </message>
    <message>
        <source>TRE indicator</source>
        <translation>TRE指示</translation>
    </message>
    <message>
        <source>without</source>
        <translation>無</translation>
    </message>
</context>
<context>
    <name>CarInfoItem30_5</name>
    <message>
        <source>15s</source>
        <translation>15s</translation>
    </message>
    <message>
        <source>1st gear</source>
        <translation>1檔</translation>
    </message>
    <message>
        <source>2st gear</source>
        <translation>2檔</translation>
    </message>
    <message>
        <source>30S</source>
        <translation>30S</translation>
    </message>
    <message>
        <source>30s</source>
        <translation>30s</translation>
    </message>
    <message>
        <source>3st gear</source>
        <translation>3檔</translation>
    </message>
    <message>
        <source>4st gear</source>
        <translation>4檔</translation>
    </message>
    <message>
        <source>5st gear</source>
        <translation>5檔</translation>
    </message>
    <message>
        <source>60S</source>
        <translation>60S</translation>
    </message>
    <message>
        <source>60s</source>
        <translation>60s</translation>
    </message>
    <message>
        <source>7.5s</source>
        <translation>7.5s</translation>
    </message>
    <message>
        <source>90S</source>
        <translation>90S</translation>
    </message>
    <message>
        <source>90s</source>
        <translation>90s</translation>
    </message>
    <message>
        <source>AUTO key and external air switching linkage</source>
        <translation>AUTO鍵與內外循環聯動</translation>
    </message>
    <message>
        <source>Air conditioning and A UTO key linkage</source>
        <translation>空調與AUTO鍵聯動</translation>
    </message>
    <message>
        <source>Auto lock by shift from P</source>
        <translation>離開P檔自動上鎖</translation>
    </message>
    <message>
        <source>Auto lock by shift to P</source>
        <translation>掛入P檔自動上鎖</translation>
    </message>
    <message>
        <source>Auto relock timer</source>
        <translation>自動重新上鎖時間</translation>
    </message>
    <message>
        <source>Automatic headlight off timer</source>
        <translation>頭燈自動關閉時間</translation>
    </message>
    <message>
        <source>Autoo lock by speed</source>
        <translation>車速自動上鎖</translation>
    </message>
    <message>
        <source>Camera track</source>
        <translation>攝像頭軌跡</translation>
    </message>
    <message>
        <source>Daytime running lights</source>
        <translation>日間行車燈</translation>
    </message>
    <message>
        <source>Driver seat door opening linkage  unlock</source>
        <translation>開駕駛座車門聯動解鎖</translation>
    </message>
    <message>
        <source>Electric rear door opening and gear adjustment</source>
        <translation>電動尾門開啟與檔位調節</translation>
    </message>
    <message>
        <source>Headlight sensitivity</source>
        <translation>頭燈靈敏度</translation>
    </message>
    <message>
        <source>Lock and unlock emergency flashing response light</source>
        <translation>上鎖解鎖應急燈閃爍應答</translation>
    </message>
    <message>
        <source>Lock unlock feedback tone</source>
        <translation>上鎖解鎖提示音</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Operate the key twice to unlock</source>
        <translation>操作鑰匙兩次解鎖</translation>
    </message>
    <message>
        <source>Remote 2 press lock</source>
        <translation>遙控按兩次上鎖</translation>
    </message>
    <message>
        <source>Set the car lighting off time</source>
        <translation>設定車燈關閉時間</translation>
    </message>
    <message>
        <source>Show dynamic trajectory</source>
        <translation>顯示動態軌跡</translation>
    </message>
    <message>
        <source>Show static trajectory</source>
        <translation>顯示靜態軌跡</translation>
    </message>
    <message>
        <source>Show warning line</source>
        <translation>顯示警示線</translation>
    </message>
    <message>
        <source>Smart car door unlock</source>
        <translation>智慧車門解鎖</translation>
    </message>
    <message>
        <source>Smart lock and a key to start</source>
        <translation>智慧鎖與一鍵啟動</translation>
    </message>
</context>
<context>
    <name>CarInfoItem30_6</name>
    <message>
        <source>Current trip fuel consumption</source>
        <translation>本次行程油耗</translation>
    </message>
    <message>
        <source>KM/L</source>
        <translation>KM/L</translation>
    </message>
    <message>
        <source>L/100KM</source>
        <translation>L/100KM</translation>
    </message>
    <message>
        <source>MPG</source>
        <translation>MPG</translation>
    </message>
    <message>
        <source>Stroke 1 fuel consumption</source>
        <translation>行程1油耗</translation>
    </message>
    <message>
        <source>Stroke 2 fuel consumption</source>
        <translation>行程2油耗</translation>
    </message>
    <message>
        <source>Stroke 3 fuel consumption</source>
        <translation>行程3油耗</translation>
    </message>
    <message>
        <source>Stroke 4 fuel consumption</source>
        <translation>行程4油耗</translation>
    </message>
    <message>
        <source>Stroke 5 fuel consumption</source>
        <translation>行程5油耗</translation>
    </message>
    <message>
        <source>Unit of measure</source>
        <translation>計量單位</translation>
    </message>
</context>
<context>
    <name>CarInfoItem30_7</name>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Continuous mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>Don&apos;t show</source>
        <translation>不顯示</translation>
    </message>
    <message>
        <source>Door closed</source>
        <translation>車門關閉</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>車門開啟</translation>
    </message>
    <message>
        <source>Driving time</source>
        <translation>駕駛時間</translation>
    </message>
    <message>
        <source>Electric back door</source>
        <translation>電動尾門</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>向內</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption-unit of measure</source>
        <translation>瞬時油耗-計量單位</translation>
    </message>
    <message>
        <source>KM</source>
        <translation>KM</translation>
    </message>
    <message>
        <source>KM/L</source>
        <translation>KM/L</translation>
    </message>
    <message>
        <source>L/100KM</source>
        <translation>L/100KM</translation>
    </message>
    <message>
        <source>MILE</source>
        <translation>英里</translation>
    </message>
    <message>
        <source>MPG</source>
        <translation>MPG</translation>
    </message>
    <message>
        <source>MovingDirectionOfElectricRearDoor</source>
        <translation>電動尾門運動方向</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>向外</translation>
    </message>
    <message>
        <source>Unit of measure</source>
        <translation>計量單位</translation>
    </message>
</context>
<context>
    <name>CarInfoItem30_8</name>
    <message>
        <source>Last 15 minutes</source>
        <translation>最近15分鐘</translation>
    </message>
    <message>
        <source>Last 14 minutes</source>
        <translation>最近14分鐘</translation>
    </message>
    <message>
        <source>Last 13 minutes</source>
        <translation>最近13分鐘</translation>
    </message>
    <message>
        <source>Last 12 minutes</source>
        <translation>最近12分鐘</translation>
    </message>
    <message>
        <source>Last 11 minutes</source>
        <translation>最近11分鐘</translation>
    </message>
    <message>
        <source>Last 10 minutes</source>
        <translation>最近10分鐘</translation>
    </message>
    <message>
        <source>Last 9 minutes</source>
        <translation>最近9分鐘</translation>
    </message>
    <message>
        <source>Last 8 minutes</source>
        <translation>最近8分鐘</translation>
    </message>
    <message>
        <source>Last 7 minutes</source>
        <translation>最近7分鐘</translation>
    </message>
    <message>
        <source>Last 6 minutes</source>
        <translation>最近6分鐘</translation>
    </message>
    <message>
        <source>Last 5 minutes</source>
        <translation>最近5分鐘</translation>
    </message>
    <message>
        <source>Last 4 minutes</source>
        <translation>最近4分鐘</translation>
    </message>
    <message>
        <source>Last 3 minutes</source>
        <translation>最近3分鐘</translation>
    </message>
    <message>
        <source>Last 2 minutes</source>
        <translation>最近2分鐘</translation>
    </message>
    <message>
        <source>Last 1 minutes</source>
        <translation>最近1分鐘</translation>
    </message>
    <message>
        <source>KM/L</source>
        <translation>KM/L</translation>
    </message>
    <message>
        <source>L/100KM</source>
        <translation>L/100KM</translation>
    </message>
    <message>
        <source>MPG</source>
        <translation>MPG</translation>
    </message>
    <message>
        <source>Unit of measure</source>
        <translation>計量單位</translation>
    </message>
</context>
<context>
    <name>CarInfoItem30_9</name>
    <message>
        <source>Does DISC6 have a disc</source>
        <translation>DISC6是否有碟</translation>
    </message>
    <message>
        <source>Does DISC5 have a disc</source>
        <translation>DISC5是否有碟</translation>
    </message>
    <message>
        <source>Does DISC4 have a disc</source>
        <translation>DISC4是否有碟</translation>
    </message>
    <message>
        <source>Does DISC3 have a disc</source>
        <translation>DISC3是否有碟</translation>
    </message>
    <message>
        <source>Does DISC2 have a disc</source>
        <translation>DISC2是否有碟</translation>
    </message>
    <message>
        <source>Does DISC1 have a disc</source>
        <translation>DISC1是否有碟</translation>
    </message>
    <message>
        <source> %1 </source>
        <translation> %1 </translation>
    </message>
    <message>
        <source>A/V</source>
        <translation>A/V</translation>
    </message>
    <message>
        <source>AM</source>
        <translation>AM</translation>
    </message>
    <message>
        <source>CD player status</source>
        <translation>CD機狀態</translation>
    </message>
    <message>
        <source>Ceiling media status-CD player status</source>
        <translation>吸頂媒體狀態-CD機狀態</translation>
    </message>
    <message>
        <source>Ceiling media status-power supply</source>
        <translation>吸頂媒體狀態-電源</translation>
    </message>
    <message>
        <source>Ceiling media status-rear system lock</source>
        <translation>吸頂媒體狀態-後排系統鎖</translation>
    </message>
    <message>
        <source>Ceiling screen status</source>
        <translation>吸頂螢幕狀態</translation>
    </message>
    <message>
        <source>Current frequency</source>
        <translation>目前頻率</translation>
    </message>
    <message>
        <source>Current frequency-band</source>
        <translation>目前頻率-波段</translation>
    </message>
    <message>
        <source>Current frequency-preset station number</source>
        <translation>目前頻率-預設電臺號</translation>
    </message>
    <message>
        <source>Current frequency-scan status</source>
        <translation>目前頻率-搜尋狀態</translation>
    </message>
    <message>
        <source>Current frequency-stereo state</source>
        <translation>目前頻率-立體聲狀態</translation>
    </message>
    <message>
        <source>Current track</source>
        <translation>目前曲目</translation>
    </message>
    <message>
        <source>Currently selected disc number</source>
        <translation>目前所選碟號</translation>
    </message>
    <message>
        <source>Currently selected disc number1</source>
        <translation>目前所選碟號1</translation>
    </message>
    <message>
        <source>DISC</source>
        <translation>DISC</translation>
    </message>
    <message>
        <source>DISC CD</source>
        <translation>DISC CD</translation>
    </message>
    <message>
        <source>DISC DVD</source>
        <translation>DISC DVD</translation>
    </message>
    <message>
        <source>Disc Reading status</source>
        <translation>讀碟狀態</translation>
    </message>
    <message>
        <source>Dish loop</source>
        <translation>碟片循環</translation>
    </message>
    <message>
        <source>Eject status</source>
        <translation>出碟狀態</translation>
    </message>
    <message>
        <source>Error status</source>
        <translation>錯誤狀態</translation>
    </message>
    <message>
        <source>FM1</source>
        <translation>FM1</translation>
    </message>
    <message>
        <source>FM2</source>
        <translation>FM2</translation>
    </message>
    <message>
        <source>Have</source>
        <translation>有</translation>
    </message>
    <message>
        <source>Idle state</source>
        <translation>空閒狀態</translation>
    </message>
    <message>
        <source>Load status</source>
        <translation>載入狀態</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Loop off</source>
        <translation>循環關</translation>
    </message>
    <message>
        <source>Monaural</source>
        <translation>單聲道</translation>
    </message>
    <message>
        <source>Non-scanning state</source>
        <translation>未搜尋狀態</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Play order</source>
        <translation>播放順序</translation>
    </message>
    <message>
        <source>Play status</source>
        <translation>播放狀態</translation>
    </message>
    <message>
        <source>Preset station</source>
        <translation>預設電臺</translation>
    </message>
    <message>
        <source>Preset station-band</source>
        <translation>預設電臺-波段</translation>
    </message>
    <message>
        <source>SD </source>
        <translation>SD </translation>
    </message>
    <message>
        <source>Scan status</source>
        <translation>搜尋狀態</translation>
    </message>
    <message>
        <source>Shuffle play</source>
        <translation>隨機播放</translation>
    </message>
    <message>
        <source>Single cycle</source>
        <translation>單曲循環</translation>
    </message>
    <message>
        <source>Total repertoire</source>
        <translation>曲目總數</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Unlocked</source>
        <translation>未鎖定</translation>
    </message>
    <message>
        <source>Wait status</source>
        <translation>等待狀態</translation>
    </message>
    <message>
        <source>current time</source>
        <translation>目前時間</translation>
    </message>
    <message>
        <source>play in order</source>
        <translation>順序播放</translation>
    </message>
    <message>
        <source>stereo</source>
        <translation>立體聲</translation>
    </message>
    <message>
        <source>total time</source>
        <translation>總時間</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>without</source>
        <translation>無</translation>
    </message>
</context>
<context>
    <name>CarInfoItem32_2</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem32_3</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem32_6</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6級</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Vehicle settings</source>
        <translation>車輛設定</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem33_2</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem33_3</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem33_6</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6級</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem37_1</name>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>15 GL8 2.4L Deluxe Edition</source>
        <translation>15款GL8 2.4L豪華版</translation>
    </message>
    <message>
        <source>20 Explorers/Mai Ruibao XL/ Trailblazer</source>
        <translation>20款探界者/邁銳寶XL/開拓者</translation>
    </message>
    <message>
        <source>20 Regal/20 Regal</source>
        <translation>20款君威/20款君威</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>阿拉伯語</translation>
    </message>
    <message>
        <source>Automatic parking interface</source>
        <translation>自動停車介面</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Clear TripA information</source>
        <translation>清除TripA資訊</translation>
    </message>
    <message>
        <source>Clear TripB information</source>
        <translation>清除TripB資訊</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>丹麥語</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>荷蘭語</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>進入</translation>
    </message>
    <message>
        <source>Enter 360 panorama</source>
        <translation>進入360環景</translation>
    </message>
    <message>
        <source>Exit 360 panorama</source>
        <translation>退出360環景</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation>芬蘭語</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法語</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德語</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>義大利語</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓語</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>挪威語</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Orientation type</source>
        <translation>方向類型</translation>
    </message>
    <message>
        <source>Outdoor temperature</source>
        <translation>車外溫度</translation>
    </message>
    <message>
        <source>Panorama status 360</source>
        <translation>360環景狀態</translation>
    </message>
    <message>
        <source>Parking progress</source>
        <translation>停車進度</translation>
    </message>
    <message>
        <source>Parking sensor off</source>
        <translation>停車感測器關閉</translation>
    </message>
    <message>
        <source>Parking space type</source>
        <translation>車位類型</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>波蘭語</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>葡萄牙語</translation>
    </message>
    <message>
        <source>Prompt information</source>
        <translation>提示訊息</translation>
    </message>
    <message>
        <source>Reversing radar is on</source>
        <translation>倒車雷達已開啟</translation>
    </message>
    <message>
        <source>Reversing radar switch information</source>
        <translation>倒車雷達開關資訊</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄語</translation>
    </message>
    <message>
        <source>Small light brightness level</source>
        <translation>小燈亮度等級</translation>
    </message>
    <message>
        <source>Small light switch indication</source>
        <translation>小燈開關指示</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙語</translation>
    </message>
    <message>
        <source>Speed signal</source>
        <translation>車速訊號</translation>
    </message>
    <message>
        <source>Steering wheel button type</source>
        <translation>方向盤按鍵類型</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>瑞典語</translation>
    </message>
    <message>
        <source>TripA-average fuel consumption</source>
        <translation>TripA-平均油耗</translation>
    </message>
    <message>
        <source>TripA-average speed</source>
        <translation>TripA-平均車速</translation>
    </message>
    <message>
        <source>TripA-fuel consumption</source>
        <translation>TripA-油耗</translation>
    </message>
    <message>
        <source>TripA-miles</source>
        <translation>TripA-里程</translation>
    </message>
    <message>
        <source>TripB-average fuel consumption</source>
        <translation>TripB-平均油耗</translation>
    </message>
    <message>
        <source>TripB-average speed</source>
        <translation>TripB-平均車速</translation>
    </message>
    <message>
        <source>TripB-fuel consumption</source>
        <translation>TripB-油耗</translation>
    </message>
    <message>
        <source>TripB-miles</source>
        <translation>TripB-里程</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其語</translation>
    </message>
    <message>
        <source>Warning sound volume setting</source>
        <translation>警告音音量設定</translation>
    </message>
    <message>
        <source>default</source>
        <translation>預設</translation>
    </message>
    <message>
        <source>left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>level</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>vertical</source>
        <translation>垂直</translation>
    </message>
</context>
<context>
    <name>CarInfoItem37_2</name>
    <message>
        <source>19 models of Cruze low configuration</source>
        <translation>19款科魯茲低配</translation>
    </message>
    <message>
        <source>20 GL8 652T mid-to-high configuration</source>
        <translation>20款GL8 652T中高配</translation>
    </message>
    <message>
        <source>20 models of GL8 652T low configuration</source>
        <translation>20款GL8 652T低配</translation>
    </message>
    <message>
        <source>21 models of Cruze low configuration</source>
        <translation>21款科魯茲低配</translation>
    </message>
    <message>
        <source>ATS‐L high configuration</source>
        <translation>ATS-L高配</translation>
    </message>
    <message>
        <source>ATS‐L low configuration</source>
        <translation>ATS-L低配</translation>
    </message>
    <message>
        <source>Battery driven motor</source>
        <translation>電池驅動馬達</translation>
    </message>
    <message>
        <source>Battery energy</source>
        <translation>電池能量</translation>
    </message>
    <message>
        <source>Battery level (20 models for smooth tour)</source>
        <translation>電池電量（20款暢巡）</translation>
    </message>
    <message>
        <source>Cadillac CTS high configuration</source>
        <translation>凱迪拉克CTS高配</translation>
    </message>
    <message>
        <source>Cadillac CTS low configuration</source>
        <translation>凱迪拉克CTS低配</translation>
    </message>
    <message>
        <source>Cadillac SRX high configuration</source>
        <translation>凱迪拉克SRX高配</translation>
    </message>
    <message>
        <source>Cadillac SRX low configuration</source>
        <translation>凱迪拉克SRX低配</translation>
    </message>
    <message>
        <source>Energy off</source>
        <translation>能量關閉</translation>
    </message>
    <message>
        <source>Engine drive motor</source>
        <translation>引擎驅動馬達</translation>
    </message>
    <message>
        <source>Engine driven wheels</source>
        <translation>引擎驅動車輪</translation>
    </message>
    <message>
        <source>Engine energy</source>
        <translation>引擎能量</translation>
    </message>
    <message>
        <source>Have</source>
        <translation>有</translation>
    </message>
    <message>
        <source>Hybrid electric vehicle</source>
        <translation>混合動力車</translation>
    </message>
    <message>
        <source>Mai Rui Bao XL high configuration</source>
        <translation>邁銳寶XL高配</translation>
    </message>
    <message>
        <source>Mai Rui Bao XL low configuration</source>
        <translation>邁銳寶XL低配</translation>
    </message>
    <message>
        <source>Motor drive battery</source>
        <translation>馬達給電池充電</translation>
    </message>
    <message>
        <source>Motor drive wheels</source>
        <translation>馬達驅動車輪</translation>
    </message>
    <message>
        <source>New Cruze</source>
        <translation>新科魯茲</translation>
    </message>
    <message>
        <source>New Cruze top configuration</source>
        <translation>新科魯茲頂配</translation>
    </message>
    <message>
        <source>New Excelle high configuration</source>
        <translation>新英朗高配</translation>
    </message>
    <message>
        <source>New Excelle low configuration</source>
        <translation>新英朗低配</translation>
    </message>
    <message>
        <source>New GL8 ES high configuration</source>
        <translation>新GL8 ES高配</translation>
    </message>
    <message>
        <source>New GL8 ES low configuration</source>
        <translation>新GL8 ES低配</translation>
    </message>
    <message>
        <source>New LaCrosse high configuration</source>
        <translation>新君越高配</translation>
    </message>
    <message>
        <source>New LaCrosse low configuration</source>
        <translation>新君越低配</translation>
    </message>
    <message>
        <source>New Regal</source>
        <translation>新君威</translation>
    </message>
    <message>
        <source>Old LaCrosse high configuration</source>
        <translation>老君越高配</translation>
    </message>
    <message>
        <source>Old LaCrosse low configuration</source>
        <translation>老君越低配</translation>
    </message>
    <message>
        <source>Old Mai Rui Bao high configuration</source>
        <translation>老邁銳寶高配</translation>
    </message>
    <message>
        <source>Old Mai Rui Bao low configuration</source>
        <translation>老邁銳寶低配</translation>
    </message>
    <message>
        <source>Old Mai Ruibao Top configuration</source>
        <translation>老邁銳寶頂配</translation>
    </message>
    <message>
        <source>Old Regal high configuration</source>
        <translation>老君威高配</translation>
    </message>
    <message>
        <source>Old Regal low configuration</source>
        <translation>老君威低配</translation>
    </message>
    <message>
        <source>Old Yinglang high configuration</source>
        <translation>老英朗高配</translation>
    </message>
    <message>
        <source>Old Yinglang low configuration</source>
        <translation>老英朗低配</translation>
    </message>
    <message>
        <source>Regeneration of energy</source>
        <translation>能量再生</translation>
    </message>
    <message>
        <source>Vehicle settings</source>
        <translation>車輛設定</translation>
    </message>
    <message>
        <source>Volando mid-to-low configuration (horizontal screen only)</source>
        <translation>沃蘭多中低配（僅橫式螢幕）</translation>
    </message>
    <message>
        <source>Volando top configuration (horizontal screen only)</source>
        <translation>沃蘭多頂配（僅橫式螢幕）</translation>
    </message>
    <message>
        <source>Weilang high configuration</source>
        <translation>威朗高配</translation>
    </message>
    <message>
        <source>Weilang low configuration</source>
        <translation>威朗低配</translation>
    </message>
    <message>
        <source>Wheel drive motor</source>
        <translation>車輪驅動馬達</translation>
    </message>
    <message>
        <source>battery power tye</source>
        <translation>電池電量類型</translation>
    </message>
    <message>
        <source>null</source>
        <translation>無</translation>
    </message>
    <message>
        <source>without</source>
        <translation>無</translation>
    </message>
</context>
<context>
    <name>CarInfoItem37_3</name>
    <message>
        <source>Adaptive cruise start reminder</source>
        <translation>主動式定速巡航起步提醒</translation>
    </message>
    <message>
        <source>Air conditioner remote start</source>
        <translation>空調遠端啟動</translation>
    </message>
    <message>
        <source>Air conditioning in the Rear area starts</source>
        <translation>後區空調啟動</translation>
    </message>
    <message>
        <source>Back zone and front zone are the same</source>
        <translation>後區與前區相同</translation>
    </message>
    <message>
        <source>Back zone and previous setting</source>
        <translation>後區沿用上次設定</translation>
    </message>
    <message>
        <source>Back zone closed</source>
        <translation>後區關閉</translation>
    </message>
    <message>
        <source>Color settings for body atmosphere</source>
        <translation>車身氛圍燈顏色設定</translation>
    </message>
    <message>
        <source>Cozy Blue No.1</source>
        <translation>靜謐藍1號</translation>
    </message>
    <message>
        <source>Cozy Blue No.2</source>
        <translation>靜謐藍2號</translation>
    </message>
    <message>
        <source>Cozy Blue No.3</source>
        <translation>靜謐藍3號</translation>
    </message>
    <message>
        <source>Cozy Blue No.4</source>
        <translation>靜謐藍4號</translation>
    </message>
    <message>
        <source>Cozy Blue No.5</source>
        <translation>靜謐藍5號</translation>
    </message>
    <message>
        <source>Cozy Blue No.6</source>
        <translation>靜謐藍6號</translation>
    </message>
    <message>
        <source>Last set</source>
        <translation>上次設定</translation>
    </message>
    <message>
        <source>Morning Golden No.1</source>
        <translation>晨曦金1號</translation>
    </message>
    <message>
        <source>Morning Golden No.2</source>
        <translation>晨曦金2號</translation>
    </message>
    <message>
        <source>Morning Golden No.3</source>
        <translation>晨曦金3號</translation>
    </message>
    <message>
        <source>Morning Golden No.4</source>
        <translation>晨曦金4號</translation>
    </message>
    <message>
        <source>Morning Golden No.5</source>
        <translation>晨曦金5號</translation>
    </message>
    <message>
        <source>Morning Golden No.6</source>
        <translation>晨曦金6號</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Ramp start assist</source>
        <translation>上坡起步輔助</translation>
    </message>
    <message>
        <source>Rear seat reminder</source>
        <translation>後排座椅提醒</translation>
    </message>
    <message>
        <source>Remote start seat heating</source>
        <translation>遠端啟動座椅加熱</translation>
    </message>
    <message>
        <source>Remote start seat heating-driver&apos;s side</source>
        <translation>遠端啟動座椅加熱-駕駛員側</translation>
    </message>
    <message>
        <source>Remotely start the seat blower</source>
        <translation>遠端啟動座椅通風</translation>
    </message>
    <message>
        <source>Twilight Purple No.1</source>
        <translation>暮光紫1號</translation>
    </message>
    <message>
        <source>Twilight Purple No.2</source>
        <translation>暮光紫2號</translation>
    </message>
    <message>
        <source>Twilight Purple No.3</source>
        <translation>暮光紫3號</translation>
    </message>
    <message>
        <source>Twilight Purple No.4</source>
        <translation>暮光紫4號</translation>
    </message>
    <message>
        <source>Twilight Purple No.5</source>
        <translation>暮光紫5號</translation>
    </message>
    <message>
        <source>Twilight Purple No.6</source>
        <translation>暮光紫6號</translation>
    </message>
    <message>
        <source>advanced</source>
        <translation>高階</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>標準</translation>
    </message>
</context>
<context>
    <name>CarInfoItem37_4</name>
    <message>
        <source>6 amp</source>
        <translation>6A</translation>
    </message>
    <message>
        <source>Activate when the horn buzzes</source>
        <translation>喇叭鳴響時啟用</translation>
    </message>
    <message>
        <source>Adaptive forward lighting</source>
        <translation>自適應前照燈</translation>
    </message>
    <message>
        <source>Adaptive headlight</source>
        <translation>自適應頭燈</translation>
    </message>
    <message>
        <source>Alarm and brake</source>
        <translation>警示並煞車</translation>
    </message>
    <message>
        <source>Alarm tone</source>
        <translation>警示提示音</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>所有車門</translation>
    </message>
    <message>
        <source>Auto assisted rear view mirror</source>
        <translation>後視鏡自動輔助</translation>
    </message>
    <message>
        <source>Auto holding of the vehicle</source>
        <translation>自動駐車</translation>
    </message>
    <message>
        <source>Auto rearview mirror folding</source>
        <translation>後視鏡自動摺疊</translation>
    </message>
    <message>
        <source>Auto relock doores</source>
        <translation>車門自動重新上鎖</translation>
    </message>
    <message>
        <source>Automatic anti collision preparation</source>
        <translation>自動防碰撞準備</translation>
    </message>
    <message>
        <source>Automatic driver key recognition</source>
        <translation>駕駛員鑰匙自動識別</translation>
    </message>
    <message>
        <source>Automatic wiper</source>
        <translation>自動雨刷</translation>
    </message>
    <message>
        <source>Automatically lock when leaving the car</source>
        <translation>離車自動上鎖</translation>
    </message>
    <message>
        <source>Car status notification</source>
        <translation>車輛狀態通知</translation>
    </message>
    <message>
        <source>Charging limit</source>
        <translation>充電限值</translation>
    </message>
    <message>
        <source>Collision/detection-prompt type</source>
        <translation>碰撞/檢測-提示類型</translation>
    </message>
    <message>
        <source>Convenient drop off options</source>
        <translation>便捷下車選項</translation>
    </message>
    <message>
        <source>Corner and Bend Lighting</source>
        <translation>轉角與彎道照明</translation>
    </message>
    <message>
        <source>Corner and corner lighting</source>
        <translation>轉角照明</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>駕駛員</translation>
    </message>
    <message>
        <source>Driver and passenger</source>
        <translation>駕駛員和乘客</translation>
    </message>
    <message>
        <source>Driver seat automatically returns</source>
        <translation>駕駛座自動回位</translation>
    </message>
    <message>
        <source>Driver&apos;s door only</source>
        <translation>僅駕駛員車門</translation>
    </message>
    <message>
        <source>Forgotten key reminder</source>
        <translation>鑰匙遺忘提醒</translation>
    </message>
    <message>
        <source>Intelligent Distribution</source>
        <translation>智慧分配</translation>
    </message>
    <message>
        <source>Lane change tips</source>
        <translation>變換車道提示</translation>
    </message>
    <message>
        <source>Left or right hand traffic</source>
        <translation>左側或右側通行</translation>
    </message>
    <message>
        <source>Left-Hand Traffic</source>
        <translation>左側通行</translation>
    </message>
    <message>
        <source>Long-term automatic parking brake</source>
        <translation>長時自動駐車煞車</translation>
    </message>
    <message>
        <source>Movement steering</source>
        <translation>運動轉向</translation>
    </message>
    <message>
        <source>Near car unlock setting-unlock</source>
        <translation>近車解鎖設定-解鎖</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Personalization by driver</source>
        <translation>按駕駛員個性化</translation>
    </message>
    <message>
        <source>Pre pedestrian detection</source>
        <translation>行人預檢測</translation>
    </message>
    <message>
        <source>Rear vehicle passing warning</source>
        <translation>後方來車警告</translation>
    </message>
    <message>
        <source>Recall memory location</source>
        <translation>呼叫記憶位置</translation>
    </message>
    <message>
        <source>Remote window control</source>
        <translation>遠端車窗控制</translation>
    </message>
    <message>
        <source>Reverse mirrors automatically tilt</source>
        <translation>倒車時後視鏡自動下翻</translation>
    </message>
    <message>
        <source>Rght-Hand Traffic</source>
        <translation>右側通行</translation>
    </message>
    <message>
        <source>Safety seats</source>
        <translation>座椅振動</translation>
    </message>
    <message>
        <source>Short-acting automatic parking brake</source>
        <translation>短時自動駐車煞車</translation>
    </message>
    <message>
        <source>Smart light distribution</source>
        <translation>智慧配光</translation>
    </message>
    <message>
        <source>Wing blind spot warning</source>
        <translation>側方盲點警告</translation>
    </message>
    <message>
        <source>alarm</source>
        <translation>警示</translation>
    </message>
    <message>
        <source>maximum</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>passenger</source>
        <translation>乘客</translation>
    </message>
</context>
<context>
    <name>CarInfoItem37_5</name>
    <message>
        <source>1minute</source>
        <translation>1分鐘</translation>
    </message>
    <message>
        <source>2minute</source>
        <translation>2分鐘</translation>
    </message>
    <message>
        <source>30s</source>
        <translation>30s</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>所有車門</translation>
    </message>
    <message>
        <source>Automatic parking unlock</source>
        <translation>駐車自動解鎖</translation>
    </message>
    <message>
        <source>Automatically lock at start</source>
        <translation>起步自動上鎖</translation>
    </message>
    <message>
        <source>Car body central control operation sign</source>
        <translation>車身中控操作標誌</translation>
    </message>
    <message>
        <source>Delay setting of lock out headlights</source>
        <translation>鎖車後頭燈延時設定</translation>
    </message>
    <message>
        <source>Delayed lock</source>
        <translation>延時上鎖</translation>
    </message>
    <message>
        <source>Driver&apos;s door</source>
        <translation>駕駛員車門</translation>
    </message>
    <message>
        <source>Find car light function</source>
        <translation>尋車燈功能</translation>
    </message>
    <message>
        <source>Horn only</source>
        <translation>僅喇叭</translation>
    </message>
    <message>
        <source>Inoperable</source>
        <translation>不可操作</translation>
    </message>
    <message>
        <source>Lights and horns</source>
        <translation>燈光和喇叭</translation>
    </message>
    <message>
        <source>Lights only</source>
        <translation>僅燈光</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Operable</source>
        <translation>可操作</translation>
    </message>
    <message>
        <source>Prevent automatic lock when opening</source>
        <translation>開門時防止自動上鎖</translation>
    </message>
    <message>
        <source>Remote control door lock light/horn feedback</source>
        <translation>遙控鎖門燈光/喇叭回饋</translation>
    </message>
    <message>
        <source>Remote control to lock the door</source>
        <translation>遙控鎖門</translation>
    </message>
    <message>
        <source>Remote control unlockLight feedback</source>
        <translation>遙控解鎖燈光回饋</translation>
    </message>
    <message>
        <source>Remote unlock setting</source>
        <translation>遙控解鎖設定</translation>
    </message>
    <message>
        <source>Remotely start the vehicle</source>
        <translation>遠端啟動車輛</translation>
    </message>
    <message>
        <source>Wipers start automatically after reversing</source>
        <translation>倒車後雨刷自動啟動</translation>
    </message>
</context>
<context>
    <name>CarInfoItem37_6</name>
    <message>
        <source>Air conditioner start mode setting</source>
        <translation>空調啟動模式設定</translation>
    </message>
    <message>
        <source>Air conditioning zone temperature</source>
        <translation>空調分區溫度</translation>
    </message>
    <message>
        <source>Air quality sensor settings</source>
        <translation>空氣品質感測器設定</translation>
    </message>
    <message>
        <source>Automatic defogging of front window</source>
        <translation>前窗自動除霧</translation>
    </message>
    <message>
        <source>Automatic defogging of rear window</source>
        <translation>後窗自動除霧</translation>
    </message>
    <message>
        <source>Automatic mode air volume setting</source>
        <translation>自動模式風量設定</translation>
    </message>
    <message>
        <source>Automatic seat heating</source>
        <translation>座椅自動加熱</translation>
    </message>
    <message>
        <source>Climate switch host air conditioning control interface</source>
        <translation>空調按鍵切換至主機空調介面</translation>
    </message>
    <message>
        <source>Comfortable</source>
        <translation>舒適</translation>
    </message>
    <message>
        <source>Don&apos;t switch</source>
        <translation>不切換</translation>
    </message>
    <message>
        <source>Follow last setting</source>
        <translation>沿用上次設定</translation>
    </message>
    <message>
        <source>High sensitivity</source>
        <translation>高靈敏度</translation>
    </message>
    <message>
        <source>Low sensitivity</source>
        <translation>低靈敏度</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Partition settings</source>
        <translation>分區設定</translation>
    </message>
    <message>
        <source>Remote start seat automatic heating</source>
        <translation>遠端啟動座椅自動加熱</translation>
    </message>
    <message>
        <source>Show wind speed automatically</source>
        <translation>自動顯示風速</translation>
    </message>
    <message>
        <source>Show wind speed value</source>
        <translation>顯示風速值</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>切換</translation>
    </message>
    <message>
        <source>Unified settings</source>
        <translation>統一設定</translation>
    </message>
    <message>
        <source>Ventilation mode(20 types of smooth patrol)</source>
        <translation>通風模式（20款暢巡）</translation>
    </message>
    <message>
        <source>Ventilation only</source>
        <translation>僅通風</translation>
    </message>
    <message>
        <source>Wind speed automatic</source>
        <translation>風速自動</translation>
    </message>
    <message>
        <source>economy</source>
        <translation>經濟</translation>
    </message>
    <message>
        <source>high</source>
        <translation>高</translation>
    </message>
    <message>
        <source>low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>medium</source>
        <translation>中</translation>
    </message>
</context>
<context>
    <name>CarInfoItem37_7</name>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>9</source>
        <translation>9</translation>
    </message>
    <message>
        <source>BC</source>
        <translation>BC</translation>
    </message>
    <message>
        <source>CD/MP3</source>
        <translation>CD/MP3</translation>
    </message>
    <message>
        <source>FM/AM</source>
        <translation>FM/AM</translation>
    </message>
    <message>
        <source>LEFT</source>
        <translation>左</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>無</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>RIGH</source>
        <translation>右</translation>
    </message>
    <message>
        <source>SETTING</source>
        <translation>設定</translation>
    </message>
</context>
<context>
    <name>CarInfoItem37_8</name>
    <message>
        <source>Left front tire pressure value</source>
        <translation>左前胎壓值</translation>
    </message>
    <message>
        <source>Left rear tire pressure value</source>
        <translation>左後胎壓值</translation>
    </message>
    <message>
        <source>Right front tire pressure value</source>
        <translation>右前胎壓值</translation>
    </message>
    <message>
        <source>Right rear tire pressure value</source>
        <translation>右後胎壓值</translation>
    </message>
</context>
<context>
    <name>CarInfoItem37_9</name>
    <message>
        <source>OnStar system off</source>
        <translation>安吉星系統已關閉</translation>
    </message>
    <message>
        <source>OnStar System on</source>
        <translation>安吉星系統已開啟</translation>
    </message>
    <message>
        <source>Phone input</source>
        <translation>電話輸入</translation>
    </message>
    <message>
        <source>Dialing</source>
        <translation>正在撥號</translation>
    </message>
    <message>
        <source>Call connected</source>
        <translation>通話已接通</translation>
    </message>
    <message>
        <source>#</source>
        <translation>#</translation>
    </message>
    <message>
        <source>*</source>
        <translation>*</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>8</source>
        <translation>8</translation>
    </message>
    <message>
        <source>9</source>
        <translation>9</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>接聽</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>call</source>
        <translation>呼叫</translation>
    </message>
    <message>
        <source>hang Up</source>
        <translation>結束通話</translation>
    </message>
</context>
<context>
    <name>CarInfoItem48_1</name>
    <message>
        <source>American English</source>
        <translation>美式英語</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>阿拉伯語</translation>
    </message>
    <message>
        <source>Australian English</source>
        <translation>澳大利亞英語</translation>
    </message>
    <message>
        <source>Automatic parking status</source>
        <translation>自動停車狀態</translation>
    </message>
    <message>
        <source>British English</source>
        <translation>英式英語</translation>
    </message>
    <message>
        <source>Canadian French</source>
        <translation>加拿大法語</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>捷克語</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>丹麥語</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>荷蘭語</translation>
    </message>
    <message>
        <source>Electric drive-battery with air conditioner</source>
        <translation>電驅-電池供空調</translation>
    </message>
    <message>
        <source>Electric drive-battery with motor</source>
        <translation>電驅-電池供馬達</translation>
    </message>
    <message>
        <source>Electric drive-battery with other</source>
        <translation>電驅-電池供其他</translation>
    </message>
    <message>
        <source>Electric drive-drive with motor</source>
        <translation>電驅-馬達驅動</translation>
    </message>
    <message>
        <source>Electric drive-motor with ngine</source>
        <translation>電驅-引擎帶馬達</translation>
    </message>
    <message>
        <source>Electric drive-the battery is pluggedIn</source>
        <translation>電驅-電池已插電</translation>
    </message>
    <message>
        <source>External radar failure</source>
        <translation>外部雷達故障</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation>芬蘭語</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法語</translation>
    </message>
    <message>
        <source>Front radar failure</source>
        <translation>前雷達故障</translation>
    </message>
    <message>
        <source>Front radar working status</source>
        <translation>前雷達工作狀態</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德語</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>義大利語</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓語</translation>
    </message>
    <message>
        <source>Latin Spanish</source>
        <translation>拉丁美洲西班牙語</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>挪威語</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Oil driven_drive with engine</source>
        <translation>油驅-引擎驅動</translation>
    </message>
    <message>
        <source>Oil driven_fuel with engine</source>
        <translation>油驅-引擎耗油</translation>
    </message>
    <message>
        <source>Oil driven_motor with engine</source>
        <translation>油驅-引擎帶馬達</translation>
    </message>
    <message>
        <source>Parallel parking</source>
        <translation>側方停車</translation>
    </message>
    <message>
        <source>Parallel parking space</source>
        <translation>平行車位</translation>
    </message>
    <message>
        <source>Parking assist function</source>
        <translation>停車輔助功能</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>波蘭語</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>葡萄牙語</translation>
    </message>
    <message>
        <source>Portuguese Brazilian</source>
        <translation>巴西葡萄牙語</translation>
    </message>
    <message>
        <source>Radar status</source>
        <translation>雷達狀態</translation>
    </message>
    <message>
        <source>Rear radar failure</source>
        <translation>後雷達故障</translation>
    </message>
    <message>
        <source>Rear radar working status</source>
        <translation>後雷達工作狀態</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄語</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>簡體中文</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙語</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>瑞典語</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>泰語</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>繁體中文</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其語</translation>
    </message>
    <message>
        <source>Vertical parking</source>
        <translation>垂直停車</translation>
    </message>
    <message>
        <source>language settings</source>
        <translation>語言設定</translation>
    </message>
    <message>
        <source>normal</source>
        <translation>正常</translation>
    </message>
</context>
<context>
    <name>CarInfoItem48_10</name>
    <message>
        <source>12 Fox, Yibo, Maverick, 13 Carnival</source>
        <translation>12款福克斯、翼搏、翼虎、13款嘉年華</translation>
    </message>
    <message>
        <source>17-18 Winged Tiger</source>
        <translation>17-18款翼虎</translation>
    </message>
    <message>
        <source>19 Taurus, 18 Mondeo hybrids</source>
        <translation>19款金牛座、18款蒙迪歐混動</translation>
    </message>
    <message>
        <source>19 Territory</source>
        <translation>19款領界</translation>
    </message>
    <message>
        <source>19 wing tigers</source>
        <translation>19款翼虎</translation>
    </message>
    <message>
        <source>19-20 Fox</source>
        <translation>19-20款福克斯</translation>
    </message>
    <message>
        <source>AM1</source>
        <translation>AM1</translation>
    </message>
    <message>
        <source>AM2</source>
        <translation>AM2</translation>
    </message>
    <message>
        <source>CD Control</source>
        <translation>CD控制</translation>
    </message>
    <message>
        <source>CD-play Track</source>
        <translation>CD播放曲目</translation>
    </message>
    <message>
        <source>Compass function</source>
        <translation>指南針功能</translation>
    </message>
    <message>
        <source>Compass-direction</source>
        <translation>指南針-方向</translation>
    </message>
    <message>
        <source>DISC</source>
        <translation>DISC</translation>
    </message>
    <message>
        <source>Demolition SYNC</source>
        <translation>拆除SYNC</translation>
    </message>
    <message>
        <source>East</source>
        <translation>東</translation>
    </message>
    <message>
        <source>FM1</source>
        <translation>FM1</translation>
    </message>
    <message>
        <source>FM2</source>
        <translation>FM2</translation>
    </message>
    <message>
        <source>High dividend</source>
        <translation>高配</translation>
    </message>
    <message>
        <source>Low profile</source>
        <translation>低配</translation>
    </message>
    <message>
        <source>Mid-range</source>
        <translation>中配</translation>
    </message>
    <message>
        <source>Model settings</source>
        <translation>車型設定</translation>
    </message>
    <message>
        <source>Model settings-Configuration</source>
        <translation>車型設定-配置</translation>
    </message>
    <message>
        <source>Next track</source>
        <translation>下一曲</translation>
    </message>
    <message>
        <source>North</source>
        <translation>北</translation>
    </message>
    <message>
        <source>Northeast</source>
        <translation>東北</translation>
    </message>
    <message>
        <source>Northwest</source>
        <translation>西北</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Previous track</source>
        <translation>上一曲</translation>
    </message>
    <message>
        <source>Radio frequency</source>
        <translation>收音頻率</translation>
    </message>
    <message>
        <source>Radio-preset station</source>
        <translation>收音-預設電臺</translation>
    </message>
    <message>
        <source>Random folder</source>
        <translation>資料夾隨機</translation>
    </message>
    <message>
        <source>Random track</source>
        <translation>曲目隨機</translation>
    </message>
    <message>
        <source>Repeat folder</source>
        <translation>資料夾循環</translation>
    </message>
    <message>
        <source>Repeat track</source>
        <translation>單曲循環</translation>
    </message>
    <message>
        <source>South</source>
        <translation>南</translation>
    </message>
    <message>
        <source>Southeast</source>
        <translation>東南</translation>
    </message>
    <message>
        <source>Southwest</source>
        <translation>西南</translation>
    </message>
    <message>
        <source>TUNER</source>
        <translation>收音機</translation>
    </message>
    <message>
        <source>West</source>
        <translation>西</translation>
    </message>
    <message>
        <source>null</source>
        <translation>無</translation>
    </message>
    <message>
        <source>source</source>
        <translation>音源</translation>
    </message>
    <message>
        <source>source parameter</source>
        <translation>音源參數</translation>
    </message>
</context>
<context>
    <name>CarInfoItem48_2</name>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>2</source>
        <translation>2</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>4</source>
        <translation>4</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>6</source>
        <translation>6</translation>
    </message>
    <message>
        <source>AM1</source>
        <translation>AM1</translation>
    </message>
    <message>
        <source>AM2</source>
        <translation>AM2</translation>
    </message>
    <message>
        <source>ASKII</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>CD</source>
        <translation>CD</translation>
    </message>
    <message>
        <source>CD Pre-made station number or line number</source>
        <translation>CD預設電臺號或行號</translation>
    </message>
    <message>
        <source>CD character format</source>
        <translation>CD字元格式</translation>
    </message>
    <message>
        <source>CD list</source>
        <translation>CD列表</translation>
    </message>
    <message>
        <source>CD loop</source>
        <translation>CD循環</translation>
    </message>
    <message>
        <source>CD playback status</source>
        <translation>CD播放狀態</translation>
    </message>
    <message>
        <source>CD random</source>
        <translation>CD隨機</translation>
    </message>
    <message>
        <source>CD source</source>
        <translation>CD音源</translation>
    </message>
    <message>
        <source>CD status</source>
        <translation>CD狀態</translation>
    </message>
    <message>
        <source>CD-current time</source>
        <translation>CD-目前時間</translation>
    </message>
    <message>
        <source>CD-current track</source>
        <translation>CD-目前曲目</translation>
    </message>
    <message>
        <source>CD-total repertoire</source>
        <translation>CD-曲目總數</translation>
    </message>
    <message>
        <source>CD-total time</source>
        <translation>CD-總時間</translation>
    </message>
    <message>
        <source>Disc error</source>
        <translation>碟片錯誤</translation>
    </message>
    <message>
        <source>Don&apos;t show</source>
        <translation>不顯示</translation>
    </message>
    <message>
        <source>Ejecting disc</source>
        <translation>正在出碟</translation>
    </message>
    <message>
        <source>FM1</source>
        <translation>FM1</translation>
    </message>
    <message>
        <source>FM2</source>
        <translation>FM2</translation>
    </message>
    <message>
        <source>FM3</source>
        <translation>FM3</translation>
    </message>
    <message>
        <source>Is not</source>
        <translation>否</translation>
    </message>
    <message>
        <source>No CD</source>
        <translation>無CD</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>收音機</translation>
    </message>
    <message>
        <source>Radio Pre-made radio</source>
        <translation>收音預設電臺</translation>
    </message>
    <message>
        <source>Radio band</source>
        <translation>收音波段</translation>
    </message>
    <message>
        <source>Radio frequency</source>
        <translation>收音頻率</translation>
    </message>
    <message>
        <source>Reading disc</source>
        <translation>正在讀碟</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>pause</source>
        <translation>暫停</translation>
    </message>
</context>
<context>
    <name>CarInfoItem48_3</name>
    <message>
        <source>Available</source>
        <translation>可用</translation>
    </message>
    <message>
        <source>Bluetooth device connection bit</source>
        <translation>藍芽裝置連線位</translation>
    </message>
    <message>
        <source>Call status</source>
        <translation>通話狀態</translation>
    </message>
    <message>
        <source>Can be selected</source>
        <translation>可選</translation>
    </message>
    <message>
        <source>Cell phone signal status</source>
        <translation>手機訊號狀態</translation>
    </message>
    <message>
        <source>Current SYNC System Version</source>
        <translation>目前SYNC系統版本</translation>
    </message>
    <message>
        <source>Current dialog type</source>
        <translation>目前對話方塊類型</translation>
    </message>
    <message>
        <source>Current menu type</source>
        <translation>目前選單類型</translation>
    </message>
    <message>
        <source>Current row attributes</source>
        <translation>目前行屬性</translation>
    </message>
    <message>
        <source>Current row attributes-SelectRow</source>
        <translation>目前行屬性-選中行</translation>
    </message>
    <message>
        <source>DOWN</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Don&apos;t show</source>
        <translation>不顯示</translation>
    </message>
    <message>
        <source>INFO button status under SYNC MEDIA menu</source>
        <translation>SYNC媒體選單下INFO鍵狀態</translation>
    </message>
    <message>
        <source>Large icon of current menu</source>
        <translation>目前選單大圖示</translation>
    </message>
    <message>
        <source>Line number</source>
        <translation>行號</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>媒體</translation>
    </message>
    <message>
        <source>Menu percentage display bar properties</source>
        <translation>選單百分比顯示條屬性</translation>
    </message>
    <message>
        <source>MenuItem display percentage</source>
        <translation>選單項顯示百分比</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>無</translation>
    </message>
    <message>
        <source>No SYNC module</source>
        <translation>無SYNC模組</translation>
    </message>
    <message>
        <source>Non-calling state</source>
        <translation>非通話狀態</translation>
    </message>
    <message>
        <source>Non-voice state</source>
        <translation>非語音狀態</translation>
    </message>
    <message>
        <source>Not selectable</source>
        <translation>不可選</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>PHONE</source>
        <translation>電話</translation>
    </message>
    <message>
        <source>Phone battery status</source>
        <translation>手機電量狀態</translation>
    </message>
    <message>
        <source>Phone call status bit</source>
        <translation>電話通話狀態位</translation>
    </message>
    <message>
        <source>Phone talk time</source>
        <translation>通話時長</translation>
    </message>
    <message>
        <source>SMS display position</source>
        <translation>簡訊顯示位置</translation>
    </message>
    <message>
        <source>SYNC VERSION NONE</source>
        <translation>無SYNC版本</translation>
    </message>
    <message>
        <source>SYNC VERSION V1</source>
        <translation>SYNC版本V1</translation>
    </message>
    <message>
        <source>SYNC VERSION V2</source>
        <translation>SYNC版本V2</translation>
    </message>
    <message>
        <source>SYNC VERSION V3</source>
        <translation>SYNC版本V3</translation>
    </message>
    <message>
        <source>SYNC current working mode</source>
        <translation>SYNC目前工作模式</translation>
    </message>
    <message>
        <source>SYNC device presence bit</source>
        <translation>SYNC裝置存在位</translation>
    </message>
    <message>
        <source>SYNC voice status bit</source>
        <translation>SYNC語音狀態位</translation>
    </message>
    <message>
        <source>Selected item in current dialog</source>
        <translation>目前對話方塊選中項</translation>
    </message>
    <message>
        <source>Show SMS icon</source>
        <translation>顯示簡訊圖示</translation>
    </message>
    <message>
        <source>The currently selected item in the menu</source>
        <translation>選單目前選中項</translation>
    </message>
    <message>
        <source>Track play time</source>
        <translation>曲目播放時間</translation>
    </message>
    <message>
        <source>UP</source>
        <translation>上</translation>
    </message>
    <message>
        <source>UP DOWN</source>
        <translation>上下</translation>
    </message>
    <message>
        <source>Voice status</source>
        <translation>語音狀態</translation>
    </message>
    <message>
        <source>With SYNC module</source>
        <translation>有SYNC模組</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>已連線</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未連線</translation>
    </message>
    <message>
        <source>unavailable</source>
        <translation>不可用</translation>
    </message>
</context>
<context>
    <name>CarInfoItem48_4</name>
    <message>
        <source>Adjustment</source>
        <translation>調節</translation>
    </message>
    <message>
        <source>Driver side adjustment-high</source>
        <translation>駕駛員側調節-高</translation>
    </message>
    <message>
        <source>Driver side adjustment-medium</source>
        <translation>駕駛員側調節-中</translation>
    </message>
    <message>
        <source>Driver side function</source>
        <translation>駕駛員側功能</translation>
    </message>
    <message>
        <source>Driving side adjustment-low</source>
        <translation>駕駛員側調節-低</translation>
    </message>
    <message>
        <source>Driving side massage backrest</source>
        <translation>駕駛員側按摩靠背</translation>
    </message>
    <message>
        <source>Driving side massage cushion</source>
        <translation>駕駛員側按摩坐墊</translation>
    </message>
    <message>
        <source>Functional status</source>
        <translation>功能狀態</translation>
    </message>
    <message>
        <source>Have</source>
        <translation>有</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>Passenger function</source>
        <translation>乘客功能</translation>
    </message>
    <message>
        <source>Passenger side adjustment-high</source>
        <translation>乘客側調節-高</translation>
    </message>
    <message>
        <source>Passenger side adjustment-low</source>
        <translation>乘客側調節-低</translation>
    </message>
    <message>
        <source>Passenger side adjustment-medium</source>
        <translation>乘客側調節-中</translation>
    </message>
    <message>
        <source>Passenger side massage backrest</source>
        <translation>乘客側按摩靠背</translation>
    </message>
    <message>
        <source>Passenger side massage cushion</source>
        <translation>乘客側按摩坐墊</translation>
    </message>
    <message>
        <source>high</source>
        <translation>高</translation>
    </message>
    <message>
        <source>massage</source>
        <translation>按摩</translation>
    </message>
    <message>
        <source>without</source>
        <translation>無</translation>
    </message>
</context>
<context>
    <name>CarInfoItem48_5</name>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>All round</source>
        <translation>聲場</translation>
    </message>
    <message>
        <source>Back seat</source>
        <translation>後排</translation>
    </message>
    <message>
        <source>Driving side</source>
        <translation>駕駛側</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Midrange</source>
        <translation>中音</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>Reset all</source>
        <translation>全部重設</translation>
    </message>
    <message>
        <source>Sound effect mode</source>
        <translation>音效模式</translation>
    </message>
    <message>
        <source>SpeedAnd volume adjustment</source>
        <translation>速度音量調節</translation>
    </message>
    <message>
        <source>Surround sound</source>
        <translation>環繞聲</translation>
    </message>
    <message>
        <source>Treble</source>
        <translation>高音</translation>
    </message>
    <message>
        <source>Whole car</source>
        <translation>全車</translation>
    </message>
    <message>
        <source>attenuation</source>
        <translation>衰減</translation>
    </message>
    <message>
        <source>balance</source>
        <translation>平衡</translation>
    </message>
    <message>
        <source>bass</source>
        <translation>低音</translation>
    </message>
    <message>
        <source>high</source>
        <translation>高</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>中</translation>
    </message>
    <message>
        <source>stereo</source>
        <translation>立體聲</translation>
    </message>
    <message>
        <source>volume</source>
        <translation>音量</translation>
    </message>
</context>
<context>
    <name>CarInfoItem48_6</name>
    <message>
        <source>Ambient light-Adaptive</source>
        <translation>氛圍燈-自適應</translation>
    </message>
    <message>
        <source>Ambient light-brightness value</source>
        <translation>氛圍燈-亮度值</translation>
    </message>
    <message>
        <source>Ambient light-colour</source>
        <translation>氛圍燈-顏色</translation>
    </message>
    <message>
        <source>Battery charging</source>
        <translation>電池充電</translation>
    </message>
    <message>
        <source>Battery energy</source>
        <translation>電池能量</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>藍色</translation>
    </message>
    <message>
        <source>Can be pressed</source>
        <translation>可按下</translation>
    </message>
    <message>
        <source>Can&apos;t press</source>
        <translation>不可按下</translation>
    </message>
    <message>
        <source>Charging high voltage battery</source>
        <translation>高壓電池充電中</translation>
    </message>
    <message>
        <source>Cockpit fresh air</source>
        <translation>座艙新風</translation>
    </message>
    <message>
        <source>Driving force demand</source>
        <translation>驅動力需求</translation>
    </message>
    <message>
        <source>Earthy yellow</source>
        <translation>土黃色</translation>
    </message>
    <message>
        <source>Engine brake start</source>
        <translation>引擎煞車啟動</translation>
    </message>
    <message>
        <source>Engine temperature is too low</source>
        <translation>引擎溫度過低</translation>
    </message>
    <message>
        <source>Fuel maintenance</source>
        <translation>燃油維護</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>綠色</translation>
    </message>
    <message>
        <source>Have</source>
        <translation>有</translation>
    </message>
    <message>
        <source>Heater demand</source>
        <translation>暖風需求</translation>
    </message>
    <message>
        <source>Hybrid drive</source>
        <translation>混合驅動</translation>
    </message>
    <message>
        <source>Inside the car PM 2.5</source>
        <translation>車內PM2.5</translation>
    </message>
    <message>
        <source>Low speed</source>
        <translation>低速</translation>
    </message>
    <message>
        <source>Low utilization</source>
        <translation>低利用率</translation>
    </message>
    <message>
        <source>Neutral</source>
        <translation>空檔</translation>
    </message>
    <message>
        <source>Normal operation</source>
        <translation>正常執行</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>Pink</source>
        <translation>粉色</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>紫色</translation>
    </message>
    <message>
        <source>Reason 1</source>
        <translation>原因1</translation>
    </message>
    <message>
        <source>Reason 2</source>
        <translation>原因2</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>紅色</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>天藍色</translation>
    </message>
    <message>
        <source>Time to fully charge</source>
        <translation>充滿電時間</translation>
    </message>
    <message>
        <source>Too fast</source>
        <translation>過快</translation>
    </message>
    <message>
        <source>Vehicle energy status</source>
        <translation>車輛能量狀態</translation>
    </message>
    <message>
        <source>battery temperature</source>
        <translation>電池溫度</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>藍色</translation>
    </message>
    <message>
        <source>charging completed</source>
        <translation>充電完成</translation>
    </message>
    <message>
        <source>electric drive</source>
        <translation>純電驅動</translation>
    </message>
    <message>
        <source>engine drive</source>
        <translation>引擎驅動</translation>
    </message>
    <message>
        <source>fast charging</source>
        <translation>快充</translation>
    </message>
    <message>
        <source>fast charging completed</source>
        <translation>快充完成</translation>
    </message>
    <message>
        <source>green</source>
        <translation>綠色</translation>
    </message>
    <message>
        <source>ice blue</source>
        <translation>冰藍色</translation>
    </message>
    <message>
        <source>idling</source>
        <translation>怠速</translation>
    </message>
    <message>
        <source>idling charging</source>
        <translation>怠速充電</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>purple</source>
        <translation>紫色</translation>
    </message>
    <message>
        <source>red</source>
        <translation>紅色</translation>
    </message>
    <message>
        <source>remotely started</source>
        <translation>已遠端啟動</translation>
    </message>
    <message>
        <source>soft blue</source>
        <translation>柔藍色</translation>
    </message>
    <message>
        <source>without</source>
        <translation>無</translation>
    </message>
</context>
<context>
    <name>CarInfoItem48_7</name>
    <message>
        <source>10 minutes</source>
        <translation>10分鐘</translation>
    </message>
    <message>
        <source>10s</source>
        <translation>10s</translation>
    </message>
    <message>
        <source>120s</source>
        <translation>120s</translation>
    </message>
    <message>
        <source>15 minutes</source>
        <translation>15分鐘</translation>
    </message>
    <message>
        <source>20s</source>
        <translation>20s</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5分鐘</translation>
    </message>
    <message>
        <source>Activate remote start</source>
        <translation>啟用遠端啟動</translation>
    </message>
    <message>
        <source>Active braking</source>
        <translation>主動煞車</translation>
    </message>
    <message>
        <source>Adaptive</source>
        <translation>自適應</translation>
    </message>
    <message>
        <source>Air conditioning control</source>
        <translation>空調控制</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>所有車門</translation>
    </message>
    <message>
        <source>Ambient light</source>
        <translation>氛圍燈</translation>
    </message>
    <message>
        <source>Assist</source>
        <translation>輔助</translation>
    </message>
    <message>
        <source>Automatic engine shutdown</source>
        <translation>引擎自動熄火</translation>
    </message>
    <message>
        <source>Automatic folding</source>
        <translation>自動摺疊</translation>
    </message>
    <message>
        <source>Automatic high beam</source>
        <translation>自動遠光燈</translation>
    </message>
    <message>
        <source>Automatically unlock</source>
        <translation>自動解鎖</translation>
    </message>
    <message>
        <source>BAR</source>
        <translation>BAR</translation>
    </message>
    <message>
        <source>Blind spot monitoring</source>
        <translation>盲點監測</translation>
    </message>
    <message>
        <source>Cockpit fresh air</source>
        <translation>座艙新風</translation>
    </message>
    <message>
        <source>Cruise control</source>
        <translation>定速巡航</translation>
    </message>
    <message>
        <source>Distance reminder</source>
        <translation>車距提醒</translation>
    </message>
    <message>
        <source>Driver&apos;s door only</source>
        <translation>僅駕駛員車門</translation>
    </message>
    <message>
        <source>Electric trunk</source>
        <translation>電動行李廂</translation>
    </message>
    <message>
        <source>False lock warning</source>
        <translation>誤鎖警告</translation>
    </message>
    <message>
        <source>Fatigue driving warning</source>
        <translation>疲勞駕駛警告</translation>
    </message>
    <message>
        <source>Headlight delay</source>
        <translation>頭燈延時</translation>
    </message>
    <message>
        <source>KPA</source>
        <translation>KPA</translation>
    </message>
    <message>
        <source>Lane keeping mode</source>
        <translation>車道維持模式</translation>
    </message>
    <message>
        <source>Last set</source>
        <translation>上次設定</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>PSI</source>
        <translation>PSI</translation>
    </message>
    <message>
        <source>Press down</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Rain sensor wiper</source>
        <translation>雨量感應雨刷</translation>
    </message>
    <message>
        <source>Rear wiper</source>
        <translation>後雨刷</translation>
    </message>
    <message>
        <source>Remote control off</source>
        <translation>遙控關閉</translation>
    </message>
    <message>
        <source>Remote control on</source>
        <translation>遙控開啟</translation>
    </message>
    <message>
        <source>Remote unlock</source>
        <translation>遙控解鎖</translation>
    </message>
    <message>
        <source>Repeat wiper once</source>
        <translation>雨刷補刮一次</translation>
    </message>
    <message>
        <source>Reverse gear coming warning</source>
        <translation>倒車來車警告</translation>
    </message>
    <message>
        <source>Sensitivity</source>
        <translation>靈敏度</translation>
    </message>
    <message>
        <source>Steering wheel heating and seat air conditioning</source>
        <translation>方向盤加熱與座椅空調</translation>
    </message>
    <message>
        <source>Switch prohibited</source>
        <translation>禁止切換</translation>
    </message>
    <message>
        <source>TCS traction control</source>
        <translation>TCS牽引力控制</translation>
    </message>
    <message>
        <source>Temperature unit</source>
        <translation>溫度單位</translation>
    </message>
    <message>
        <source>Tire pressure unit</source>
        <translation>胎壓單位</translation>
    </message>
    <message>
        <source>Unit of measure</source>
        <translation>計量單位</translation>
    </message>
    <message>
        <source>Voice Feedback</source>
        <translation>語音回饋</translation>
    </message>
    <message>
        <source>Warn + assist</source>
        <translation>警告+輔助</translation>
    </message>
    <message>
        <source>Warning intensity</source>
        <translation>警告強度</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>cycle</source>
        <translation>循環</translation>
    </message>
    <message>
        <source>freed</source>
        <translation>已釋放</translation>
    </message>
    <message>
        <source>high</source>
        <translation>高</translation>
    </message>
    <message>
        <source>km&amp;km/l</source>
        <translation>km&amp;km/l</translation>
    </message>
    <message>
        <source>km&amp;l/100km </source>
        <translation>km&amp;l/100km </translation>
    </message>
    <message>
        <source>mi&amp;mpg </source>
        <translation>mi&amp;mpg </translation>
    </message>
    <message>
        <source>standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>warn</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>℃</source>
        <translation>℃</translation>
    </message>
    <message>
        <source>℉</source>
        <translation>℉</translation>
    </message>
</context>
<context>
    <name>CarInfoItem48_8</name>
    <message>
        <source>0s</source>
        <translation>0s</translation>
    </message>
    <message>
        <source>10m</source>
        <translation>10分鐘</translation>
    </message>
    <message>
        <source>15m</source>
        <translation>15分鐘</translation>
    </message>
    <message>
        <source>15s</source>
        <translation>15s</translation>
    </message>
    <message>
        <source>1m</source>
        <translation>1分鐘</translation>
    </message>
    <message>
        <source>2m</source>
        <translation>2分鐘</translation>
    </message>
    <message>
        <source>30s</source>
        <translation>30s</translation>
    </message>
    <message>
        <source>3m</source>
        <translation>3分鐘</translation>
    </message>
    <message>
        <source>5m</source>
        <translation>5分鐘</translation>
    </message>
    <message>
        <source>60s</source>
        <translation>60s</translation>
    </message>
    <message>
        <source>After defrosting time</source>
        <translation>除霜後時間</translation>
    </message>
    <message>
        <source>Ambient light settings</source>
        <translation>氛圍燈設定</translation>
    </message>
    <message>
        <source>Ambient temperature information</source>
        <translation>環境溫度資訊</translation>
    </message>
    <message>
        <source>Auto headlight sensitivity</source>
        <translation>自動頭燈靈敏度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Backlight adjustment</source>
        <translation>背光調節</translation>
    </message>
    <message>
        <source>Buzzer alarm</source>
        <translation>蜂鳴器警示</translation>
    </message>
    <message>
        <source>Enhanced parking assist</source>
        <translation>增強型停車輔助</translation>
    </message>
    <message>
        <source>Flashes 1 time</source>
        <translation>閃爍1次</translation>
    </message>
    <message>
        <source>Flashes 3 time</source>
        <translation>閃爍3次</translation>
    </message>
    <message>
        <source>Indoor lamp time</source>
        <translation>室內燈時間</translation>
    </message>
    <message>
        <source>Information tone</source>
        <translation>資訊提示音</translation>
    </message>
    <message>
        <source>Instrument arrow keys</source>
        <translation>儀表方向鍵</translation>
    </message>
    <message>
        <source>Intelligent unlocking</source>
        <translation>智慧解鎖</translation>
    </message>
    <message>
        <source>KM</source>
        <translation>KM</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>MILE</source>
        <translation>英里</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>MileageUnit</source>
        <translation>里程單位</translation>
    </message>
    <message>
        <source>No amplification</source>
        <translation>不放大</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Oil life</source>
        <translation>機油壽命</translation>
    </message>
    <message>
        <source>Rain sensor</source>
        <translation>雨量感測器</translation>
    </message>
    <message>
        <source>Ramp start assist</source>
        <translation>上坡起步輔助</translation>
    </message>
    <message>
        <source>Rear view keep</source>
        <translation>後視保持</translation>
    </message>
    <message>
        <source>Rear view split screen</source>
        <translation>後視分割畫面</translation>
    </message>
    <message>
        <source>Rearview mirror folding mode</source>
        <translation>後視鏡摺疊模式</translation>
    </message>
    <message>
        <source>Remaining oil</source>
        <translation>剩餘油量</translation>
    </message>
    <message>
        <source>Remote control car window</source>
        <translation>遙控車窗</translation>
    </message>
    <message>
        <source>Restricted</source>
        <translation>受限</translation>
    </message>
    <message>
        <source>Reversing video zoom</source>
        <translation>倒車影像放大</translation>
    </message>
    <message>
        <source>Speed lock</source>
        <translation>車速上鎖</translation>
    </message>
    <message>
        <source>Stay with me home</source>
        <translation>伴我回家</translation>
    </message>
    <message>
        <source>Traction control system</source>
        <translation>牽引力控制系統</translation>
    </message>
    <message>
        <source>Turn signal  setting</source>
        <translation>方向燈設定</translation>
    </message>
    <message>
        <source>Warning tone</source>
        <translation>警告音</translation>
    </message>
    <message>
        <source>Welcome light duration</source>
        <translation>迎賓燈時長</translation>
    </message>
    <message>
        <source>Wireless charging</source>
        <translation>無線充電</translation>
    </message>
    <message>
        <source>Zoomed in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>charging indicator</source>
        <translation>充電指示</translation>
    </message>
    <message>
        <source>driven distance</source>
        <translation>行駛里程</translation>
    </message>
    <message>
        <source>high</source>
        <translation>高</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>中</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem48_9</name>
    <message>
        <source>Front left tire</source>
        <translation>左前輪胎</translation>
    </message>
    <message>
        <source>Front left tire pressure temperature</source>
        <translation>左前胎溫</translation>
    </message>
    <message>
        <source>Front right tire</source>
        <translation>右前輪胎</translation>
    </message>
    <message>
        <source>Front right tire temperature</source>
        <translation>右前胎溫</translation>
    </message>
    <message>
        <source>High voltage warning</source>
        <translation>高壓警告</translation>
    </message>
    <message>
        <source>Left front tire pressure value</source>
        <translation>左前胎壓值</translation>
    </message>
    <message>
        <source>Left rear tire pressure value</source>
        <translation>左後胎壓值</translation>
    </message>
    <message>
        <source>Loss of signal</source>
        <translation>訊號丟失</translation>
    </message>
    <message>
        <source>Low pressure warning</source>
        <translation>低壓警告</translation>
    </message>
    <message>
        <source>Low pressure warning and quick leak</source>
        <translation>低壓警告並快速漏氣</translation>
    </message>
    <message>
        <source>Low sensor power</source>
        <translation>感測器電量低</translation>
    </message>
    <message>
        <source>Rapid leakage</source>
        <translation>快速漏氣</translation>
    </message>
    <message>
        <source>Rear left tire</source>
        <translation>左後輪胎</translation>
    </message>
    <message>
        <source>Rear left tire temperature</source>
        <translation>左後胎溫</translation>
    </message>
    <message>
        <source>Rear right tire</source>
        <translation>右後輪胎</translation>
    </message>
    <message>
        <source>Rear right tire temperature</source>
        <translation>右後胎溫</translation>
    </message>
    <message>
        <source>Right front tire pressure value</source>
        <translation>右前胎壓值</translation>
    </message>
    <message>
        <source>Right rear tire pressure value</source>
        <translation>右後胎壓值</translation>
    </message>
    <message>
        <source>Sensor error</source>
        <translation>感測器錯誤</translation>
    </message>
    <message>
        <source>normal</source>
        <translation>正常</translation>
    </message>
</context>
<context>
    <name>CarInfoItem56_2</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem56_3</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>車窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>車窗-左後</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>車窗-右後</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>車窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem56_6</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6級</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左後車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右後車窗開閉</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗開閉</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem64_1</name>
    <message>
        <source>10A</source>
        <translation>10A</translation>
    </message>
    <message>
        <source>16A</source>
        <translation>16A</translation>
    </message>
    <message>
        <source>32A</source>
        <translation>32A</translation>
    </message>
    <message>
        <source>8A</source>
        <translation>8A</translation>
    </message>
    <message>
        <source>Adjustable charging SOC</source>
        <translation>可調充電SOC</translation>
    </message>
    <message>
        <source>Adjustable charging current</source>
        <translation>可調充電電流</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>結束時間</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>The strength of energy recovery</source>
        <translation>能量回收強度</translation>
    </message>
    <message>
        <source>creep mode</source>
        <translation>蠕行模式</translation>
    </message>
    <message>
        <source>long battery life</source>
        <translation>延長電池壽命</translation>
    </message>
    <message>
        <source>long cruising range</source>
        <translation>長續航里程</translation>
    </message>
    <message>
        <source>make an appointment to charge:end time-minute</source>
        <translation>預約充電：結束時間-分</translation>
    </message>
    <message>
        <source>make an appointment to charge:end time-time</source>
        <translation>預約充電：結束時間-時</translation>
    </message>
    <message>
        <source>make an appointment to charge:start time-minute</source>
        <translation>預約充電：開始時間-分</translation>
    </message>
    <message>
        <source>make an appointment to charge:start time-time</source>
        <translation>預約充電：開始時間-時</translation>
    </message>
    <message>
        <source>powerful</source>
        <translation>強勁</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>start time</source>
        <translation>開始時間</translation>
    </message>
    <message>
        <source>weak</source>
        <translation>弱</translation>
    </message>
</context>
<context>
    <name>CarInfoItem64_2</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem64_3</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>車窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>車窗-左後</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>車窗-右後</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>車窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem64_4</name>
    <message>
        <source>recover</source>
        <translation>恢復</translation>
    </message>
    <message>
        <source>10s</source>
        <translation>10s</translation>
    </message>
    <message>
        <source>3 times</source>
        <translation>3次</translation>
    </message>
    <message>
        <source>30s</source>
        <translation>30s</translation>
    </message>
    <message>
        <source>360 panorama-automatic activation of the front radar</source>
        <translation>360環景-前雷達自動啟用</translation>
    </message>
    <message>
        <source>360 panorama-low speed turn signal automatic activation</source>
        <translation>360環景-低速方向燈自動啟用</translation>
    </message>
    <message>
        <source>5 times</source>
        <translation>5次</translation>
    </message>
    <message>
        <source>60s</source>
        <translation>60s</translation>
    </message>
    <message>
        <source>7 times</source>
        <translation>7次</translation>
    </message>
    <message>
        <source>90s</source>
        <translation>90s</translation>
    </message>
    <message>
        <source>Air conditioner type</source>
        <translation>空調類型</translation>
    </message>
    <message>
        <source>Air conditioning settings-air conditioning self drying</source>
        <translation>空調設定-空調自乾燥</translation>
    </message>
    <message>
        <source>Air conditioning settings-air preconditioning</source>
        <translation>空調設定-空氣預調節</translation>
    </message>
    <message>
        <source>Air conditioning settings-air purification system turns on automatically</source>
        <translation>空調設定-空氣淨化系統自動開啟</translation>
    </message>
    <message>
        <source>Air conditioning settings-bluetooth calls to reduce fan speed</source>
        <translation>空調設定-藍芽通話降低風速</translation>
    </message>
    <message>
        <source>Air conditioning settings-unlock active ventilation</source>
        <translation>空調設定-解鎖主動通風</translation>
    </message>
    <message>
        <source>Air conditioning settings-unlock down window ventilation</source>
        <translation>空調設定-解鎖降窗通風</translation>
    </message>
    <message>
        <source>Air preconditioning custom-AM</source>
        <translation>空氣預調節自訂-上午</translation>
    </message>
    <message>
        <source>Air preconditioning custom-Night</source>
        <translation>空氣預調節自訂-夜間</translation>
    </message>
    <message>
        <source>Air preconditioning custom-PM</source>
        <translation>空氣預調節自訂-下午</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>藍色</translation>
    </message>
    <message>
        <source>Body setting-secondary Lock</source>
        <translation>車身設定-二次上鎖</translation>
    </message>
    <message>
        <source>Body settings-auto lock when flame out</source>
        <translation>車身設定-熄火自動上鎖</translation>
    </message>
    <message>
        <source>Body settings-automatic drivingLock</source>
        <translation>車身設定-行車自動上鎖</translation>
    </message>
    <message>
        <source>Body settings-automatic folding mirrors</source>
        <translation>車身設定-後視鏡自動摺疊</translation>
    </message>
    <message>
        <source>Body settings-driving mode memory</source>
        <translation>車身設定-駕駛模式記憶</translation>
    </message>
    <message>
        <source>Body settings-latch automatically close windows</source>
        <translation>車身設定-上鎖自動關窗</translation>
    </message>
    <message>
        <source>Body settings-main driver door unlocked separately</source>
        <translation>車身設定-主駕車門單獨解鎖</translation>
    </message>
    <message>
        <source>Body settings-rain off sunroof settings</source>
        <translation>車身設定-雨天自動關天窗</translation>
    </message>
    <message>
        <source>Body settings-remote unlock</source>
        <translation>車身設定-遙控解鎖</translation>
    </message>
    <message>
        <source>Body settings-side window light function</source>
        <translation>車身設定-側窗燈光功能</translation>
    </message>
    <message>
        <source>Body settings-smart welcome</source>
        <translation>車身設定-智慧迎賓</translation>
    </message>
    <message>
        <source>Body settings-unlock feedback method</source>
        <translation>車身設定-解鎖回饋方式</translation>
    </message>
    <message>
        <source>Body settings-window delay time</source>
        <translation>車身設定-車窗延時時間</translation>
    </message>
    <message>
        <source>Body settings-window remote control</source>
        <translation>車身設定-車窗遙控</translation>
    </message>
    <message>
        <source>Body settings-wiper assist after reversing</source>
        <translation>車身設定-倒車後雨刷輔助</translation>
    </message>
    <message>
        <source>Body settings-wireless charging switch function</source>
        <translation>車身設定-無線充電開關功能</translation>
    </message>
    <message>
        <source>Body setup-electric horn sound</source>
        <translation>車身設定-電喇叭聲音</translation>
    </message>
    <message>
        <source>Body setup-parking auto unlock</source>
        <translation>車身設定-駐車自動解鎖</translation>
    </message>
    <message>
        <source>Breathable</source>
        <translation>透氣</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>經典</translation>
    </message>
    <message>
        <source>Comfort</source>
        <translation>舒適</translation>
    </message>
    <message>
        <source>Correction only</source>
        <translation>僅糾偏</translation>
    </message>
    <message>
        <source>Cruise control-integrated adaptive cruise</source>
        <translation>巡航控制-整合式主動式定速巡航</translation>
    </message>
    <message>
        <source>Cruise control-target beep</source>
        <translation>巡航控制-目標提示音</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自訂</translation>
    </message>
    <message>
        <source>Custom driving mode-Power mode</source>
        <translation>自訂駕駛模式-動力模式</translation>
    </message>
    <message>
        <source>Custom driving mode-steering mode</source>
        <translation>自訂駕駛模式-轉向模式</translation>
    </message>
    <message>
        <source>Dim while driving</source>
        <translation>行車時調暗</translation>
    </message>
    <message>
        <source>Early warning + correction</source>
        <translation>預警+糾偏</translation>
    </message>
    <message>
        <source>Economy</source>
        <translation>經濟</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Front collision assist-front collision warning</source>
        <translation>前碰撞輔助-前碰撞預警</translation>
    </message>
    <message>
        <source>Front collision avoidance assist-automatic emergency braking</source>
        <translation>前碰撞避免輔助-自動緊急煞車</translation>
    </message>
    <message>
        <source>Front collision avoidance assist-front collision alert sensitivity</source>
        <translation>前碰撞避免輔助-前碰撞預警靈敏度</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>綠色</translation>
    </message>
    <message>
        <source>Identify only hints</source>
        <translation>僅識別提示</translation>
    </message>
    <message>
        <source>Instrument sound-alarm sound</source>
        <translation>儀表聲音-警示音</translation>
    </message>
    <message>
        <source>Instrument sound-beep sound</source>
        <translation>儀表聲音-提示音</translation>
    </message>
    <message>
        <source>Instrument sound-welcome sound</source>
        <translation>儀表聲音-迎賓音</translation>
    </message>
    <message>
        <source>Lane assist speed warning bias</source>
        <translation>車道輔助超速警示偏差</translation>
    </message>
    <message>
        <source>Lane assist-early warning mode</source>
        <translation>車道輔助-預警方式</translation>
    </message>
    <message>
        <source>Lane assist-function selection</source>
        <translation>車道輔助-功能選擇</translation>
    </message>
    <message>
        <source>Lane assist-sensitivity</source>
        <translation>車道輔助-靈敏度</translation>
    </message>
    <message>
        <source>Lane assist-speed limit sign recognition</source>
        <translation>車道輔助-限速標誌識別</translation>
    </message>
    <message>
        <source>Lane assist-speed warning</source>
        <translation>車道輔助-超速警示</translation>
    </message>
    <message>
        <source>Lane assist-speed warning sound</source>
        <translation>車道輔助-超速警示音</translation>
    </message>
    <message>
        <source>Lane assist-vibration intensity</source>
        <translation>車道輔助-振動強度</translation>
    </message>
    <message>
        <source>Light settings-auto high beam</source>
        <translation>燈光設定-自動遠光燈</translation>
    </message>
    <message>
        <source>Light setup-headlight delay</source>
        <translation>燈光設定-頭燈延時</translation>
    </message>
    <message>
        <source>Light setup-rechargeable breathing light</source>
        <translation>燈光設定-充電呼吸燈</translation>
    </message>
    <message>
        <source>Lighting settings-ambient light brightness</source>
        <translation>燈光設定-氛圍燈亮度</translation>
    </message>
    <message>
        <source>Lighting settings-ambient light brightness switch</source>
        <translation>燈光設定-氛圍燈亮度開關</translation>
    </message>
    <message>
        <source>Lighting settings-ambient light color</source>
        <translation>燈光設定-氛圍燈顏色</translation>
    </message>
    <message>
        <source>Lighting settings-ambient light music follow up function</source>
        <translation>燈光設定-氛圍燈隨音樂律動</translation>
    </message>
    <message>
        <source>Lighting settings-ambient lighting function</source>
        <translation>燈光設定-氛圍燈功能</translation>
    </message>
    <message>
        <source>Lighting settings-automatic adjustment of ambient light</source>
        <translation>燈光設定-氛圍燈自動調節</translation>
    </message>
    <message>
        <source>Lighting settings-automatic adjustment of ambient lighting</source>
        <translation>燈光設定-氛圍照明自動調節</translation>
    </message>
    <message>
        <source>Lighting settings-one button steering</source>
        <translation>燈光設定-一觸多閃</translation>
    </message>
    <message>
        <source>Lighting setup-daytime running lights</source>
        <translation>燈光設定-日間行車燈</translation>
    </message>
    <message>
        <source>Meter sound-volume level</source>
        <translation>儀表聲音-音量等級</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Purple</source>
        <translation>紫色</translation>
    </message>
    <message>
        <source>Quick control-windows</source>
        <translation>快捷控制-車窗</translation>
    </message>
    <message>
        <source>Quick controls-driving mode</source>
        <translation>快捷控制-駕駛模式</translation>
    </message>
    <message>
        <source>Rear warning-parallel assist</source>
        <translation>後方預警-併線輔助</translation>
    </message>
    <message>
        <source>Rear warning-rear end warning</source>
        <translation>後方預警-追尾預警</translation>
    </message>
    <message>
        <source>Rear warning-rear rear end warning sound</source>
        <translation>後方預警-後方追尾預警音</translation>
    </message>
    <message>
        <source>Rear warning-reversing lateral warning</source>
        <translation>後方預警-倒車側向預警</translation>
    </message>
    <message>
        <source>Recognition and disappearance are prompted</source>
        <translation>識別與消失均提示</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>紅色</translation>
    </message>
    <message>
        <source>Right blind spot image-front radar automatic activation</source>
        <translation>右側盲點影像-前雷達自動啟用</translation>
    </message>
    <message>
        <source>Right blind spot image-turn signal automatic activation</source>
        <translation>右側盲點影像-方向燈自動啟用</translation>
    </message>
    <message>
        <source>Royal Blue</source>
        <translation>寶藍色</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>運動</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>運動</translation>
    </message>
    <message>
        <source>Sunroof settings-rain sensing sunroof</source>
        <translation>天窗設定-雨量感應天窗</translation>
    </message>
    <message>
        <source>Sunroof settings-remote control sunroof</source>
        <translation>天窗設定-遙控天窗</translation>
    </message>
    <message>
        <source>Sunroof settings-voice activated sunroof</source>
        <translation>天窗設定-語音控制天窗</translation>
    </message>
    <message>
        <source>System settings-language</source>
        <translation>系統設定-語言</translation>
    </message>
    <message>
        <source>System settings-meter theme</source>
        <translation>系統設定-儀表主題</translation>
    </message>
    <message>
        <source>Technology</source>
        <translation>科技</translation>
    </message>
    <message>
        <source>Warning only</source>
        <translation>僅警告</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>all doors</source>
        <translation>所有車門</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>car search</source>
        <translation>尋車</translation>
    </message>
    <message>
        <source>car search and door unlocked</source>
        <translation>尋車並解鎖車門</translation>
    </message>
    <message>
        <source>closed while driving</source>
        <translation>行車時關閉</translation>
    </message>
    <message>
        <source>default</source>
        <translation>預設</translation>
    </message>
    <message>
        <source>door not closed</source>
        <translation>車門未關</translation>
    </message>
    <message>
        <source>driving door</source>
        <translation>駕駛員車門</translation>
    </message>
    <message>
        <source>high</source>
        <translation>高</translation>
    </message>
    <message>
        <source>just disappear the prompt</source>
        <translation>僅消失時提示</translation>
    </message>
    <message>
        <source>light + sound</source>
        <translation>燈光+聲音</translation>
    </message>
    <message>
        <source>light only</source>
        <translation>僅燈光</translation>
    </message>
    <message>
        <source>manual</source>
        <translation>手動</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>中</translation>
    </message>
    <message>
        <source>portable</source>
        <translation>輕便</translation>
    </message>
    <message>
        <source>restore vehicle settings</source>
        <translation>恢復車輛設定</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>聲音</translation>
    </message>
    <message>
        <source>sound + vibration</source>
        <translation>聲音+振動</translation>
    </message>
    <message>
        <source>sound 1</source>
        <translation>聲音1</translation>
    </message>
    <message>
        <source>sound 2</source>
        <translation>聲音2</translation>
    </message>
    <message>
        <source>sound 3</source>
        <translation>聲音3</translation>
    </message>
    <message>
        <source>sound only</source>
        <translation>僅聲音</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>vibrate</source>
        <translation>振動</translation>
    </message>
</context>
<context>
    <name>CarInfoItem64_5</name>
    <message>
        <source>reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Front left tire pressure temperature</source>
        <translation>左前胎溫</translation>
    </message>
    <message>
        <source>Front left tire warning-Sensor battery low</source>
        <translation>左前輪胎警告-感測器電量低</translation>
    </message>
    <message>
        <source>Front left tire warning-fast leak</source>
        <translation>左前輪胎警告-快速漏氣</translation>
    </message>
    <message>
        <source>Front left tire warning-high pressure warning</source>
        <translation>左前輪胎警告-高壓警告</translation>
    </message>
    <message>
        <source>Front left tire warning-low pressure warning</source>
        <translation>左前輪胎警告-低壓警告</translation>
    </message>
    <message>
        <source>Front left tire warning-sensor failure</source>
        <translation>左前輪胎警告-感測器故障</translation>
    </message>
    <message>
        <source>Front left tire warning-sensor missing</source>
        <translation>左前輪胎警告-感測器丟失</translation>
    </message>
    <message>
        <source>Front left tire warning-system error</source>
        <translation>左前輪胎警告-系統錯誤</translation>
    </message>
    <message>
        <source>Front left tire warning-temperature alert</source>
        <translation>左前輪胎警告-溫度警告</translation>
    </message>
    <message>
        <source>Front right tire temperature</source>
        <translation>右前胎溫</translation>
    </message>
    <message>
        <source>Front right tire warning-fast leak</source>
        <translation>右前輪胎警告-快速漏氣</translation>
    </message>
    <message>
        <source>Front right tire warning-high pressure warning</source>
        <translation>右前輪胎警告-高壓警告</translation>
    </message>
    <message>
        <source>Front right tire warning-low pressure warning</source>
        <translation>右前輪胎警告-低壓警告</translation>
    </message>
    <message>
        <source>Front right tire warning-sensor batteryLow</source>
        <translation>右前輪胎警告-感測器電量低</translation>
    </message>
    <message>
        <source>Front right tire warning-sensor failure</source>
        <translation>右前輪胎警告-感測器故障</translation>
    </message>
    <message>
        <source>Front right tire warning-sensor missing</source>
        <translation>右前輪胎警告-感測器丟失</translation>
    </message>
    <message>
        <source>Front right tire warning-system Error</source>
        <translation>右前輪胎警告-系統錯誤</translation>
    </message>
    <message>
        <source>Front right tire warning-temperature alert</source>
        <translation>右前輪胎警告-溫度警告</translation>
    </message>
    <message>
        <source>Left front tire pressure value</source>
        <translation>左前胎壓值</translation>
    </message>
    <message>
        <source>Left rear tire pressure value</source>
        <translation>左後胎壓值</translation>
    </message>
    <message>
        <source>Rear left tire temperature</source>
        <translation>左後胎溫</translation>
    </message>
    <message>
        <source>Rear left tire warning-Sensor battery low</source>
        <translation>左後輪胎警告-感測器電量低</translation>
    </message>
    <message>
        <source>Rear left tire warning-fast leak</source>
        <translation>左後輪胎警告-快速漏氣</translation>
    </message>
    <message>
        <source>Rear left tire warning-high pressure warning</source>
        <translation>左後輪胎警告-高壓警告</translation>
    </message>
    <message>
        <source>Rear left tire warning-low pressure warning</source>
        <translation>左後輪胎警告-低壓警告</translation>
    </message>
    <message>
        <source>Rear left tire warning-sensor failure</source>
        <translation>左後輪胎警告-感測器故障</translation>
    </message>
    <message>
        <source>Rear left tire warning-sensor missing</source>
        <translation>左後輪胎警告-感測器丟失</translation>
    </message>
    <message>
        <source>Rear left tire warning-system error</source>
        <translation>左後輪胎警告-系統錯誤</translation>
    </message>
    <message>
        <source>Rear left tire warning-temperature alert</source>
        <translation>左後輪胎警告-溫度警告</translation>
    </message>
    <message>
        <source>Rear right tire temperature</source>
        <translation>右後胎溫</translation>
    </message>
    <message>
        <source>Rear right tire warning-Sensor battery low</source>
        <translation>右後輪胎警告-感測器電量低</translation>
    </message>
    <message>
        <source>Rear right tire warning-fast leak</source>
        <translation>右後輪胎警告-快速漏氣</translation>
    </message>
    <message>
        <source>Rear right tire warning-high pressure warning</source>
        <translation>右後輪胎警告-高壓警告</translation>
    </message>
    <message>
        <source>Rear right tire warning-low pressure warning</source>
        <translation>右後輪胎警告-低壓警告</translation>
    </message>
    <message>
        <source>Rear right tire warning-sensor failure</source>
        <translation>右後輪胎警告-感測器故障</translation>
    </message>
    <message>
        <source>Rear right tire warning-sensor missing</source>
        <translation>右後輪胎警告-感測器丟失</translation>
    </message>
    <message>
        <source>Rear right tire warning-system error</source>
        <translation>右後輪胎警告-系統錯誤</translation>
    </message>
    <message>
        <source>Rear right tire warning-temperature alert</source>
        <translation>右後輪胎警告-溫度警告</translation>
    </message>
    <message>
        <source>Right front tire pressure value</source>
        <translation>右前胎壓值</translation>
    </message>
    <message>
        <source>Right rear tire pressure value</source>
        <translation>右後胎壓值</translation>
    </message>
    <message>
        <source>Tire pressure reset settings</source>
        <translation>胎壓重設設定</translation>
    </message>
    <message>
        <source>have</source>
        <translation>有</translation>
    </message>
    <message>
        <source>none</source>
        <translation>無</translation>
    </message>
</context>
<context>
    <name>CarInfoItem64_6</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左後車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右後車窗開閉</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗開閉</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem64_7</name>
    <message>
        <source>17 Changan CX70</source>
        <translation>17款長安CX70</translation>
    </message>
    <message>
        <source>18 Changan Auchan A600/20 Changan Auchan Changxing</source>
        <translation>18款長安歐尚A600/20款長安歐尚長行</translation>
    </message>
    <message>
        <source>18 Changan Auchan Kesai/21 Changan Auchan Kesai Pro</source>
        <translation>18款長安歐尚科賽/21款長安歐尚科賽Pro</translation>
    </message>
    <message>
        <source>18 Changan CS75/20 Changan CS75</source>
        <translation>18款長安CS75/20款長安CS75</translation>
    </message>
    <message>
        <source>18 Changan Lingxuan</source>
        <translation>18款長安凌軒</translation>
    </message>
    <message>
        <source>18 Changan Yidong DT</source>
        <translation>18款長安逸動DT</translation>
    </message>
    <message>
        <source>19 Changan Auchan Still</source>
        <translation>19款長安歐尚Still</translation>
    </message>
    <message>
        <source>19 Changan CS15</source>
        <translation>19款長安CS15</translation>
    </message>
    <message>
        <source>19 Changan CS35 PLUS</source>
        <translation>19款長安CS35 PLUS</translation>
    </message>
    <message>
        <source>19 Changan Yidong</source>
        <translation>19款長安逸動</translation>
    </message>
    <message>
        <source>19 Changan Yuexiang</source>
        <translation>19款長安悅翔</translation>
    </message>
    <message>
        <source>19 models of Changan Yuexiang low-end</source>
        <translation>19款長安悅翔低配</translation>
    </message>
    <message>
        <source>20 Changan Auchan X7</source>
        <translation>20款長安歐尚X7</translation>
    </message>
    <message>
        <source>21 models of Changan CS15 E-Pro</source>
        <translation>21款長安CS15 E-Pro</translation>
    </message>
    <message>
        <source>Backlight level information</source>
        <translation>背光等級資訊</translation>
    </message>
    <message>
        <source>Changan Auchan X70A</source>
        <translation>長安歐尚X70A</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>高亮</translation>
    </message>
    <message>
        <source>Inclined parking UI highlighted</source>
        <translation>斜列車位介面高亮</translation>
    </message>
    <message>
        <source>Model selection</source>
        <translation>車型選擇</translation>
    </message>
    <message>
        <source>None</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Parallel parking UI highlighted</source>
        <translation>平行車位介面高亮</translation>
    </message>
    <message>
        <source>Parking out UI highlighted</source>
        <translation>泊出界面高亮</translation>
    </message>
    <message>
        <source>Remaining maintenance mileage</source>
        <translation>剩餘保養里程</translation>
    </message>
    <message>
        <source>UI interface</source>
        <translation>UI介面</translation>
    </message>
    <message>
        <source>Vertical parking UI highlighted</source>
        <translation>垂直車位介面高亮</translation>
    </message>
    <message>
        <source>null</source>
        <translation>無</translation>
    </message>
    <message>
        <source>skylight</source>
        <translation>天窗</translation>
    </message>
</context>
<context>
    <name>CarInfoItem64_8</name>
    <message>
        <source>Back video</source>
        <translation>後視畫面</translation>
    </message>
    <message>
        <source>Back video 120° view</source>
        <translation>後視畫面120°視角</translation>
    </message>
    <message>
        <source>Back video 180° view</source>
        <translation>後視畫面180°視角</translation>
    </message>
    <message>
        <source>Disable auxiliary line</source>
        <translation>禁用輔助線</translation>
    </message>
    <message>
        <source>Front video</source>
        <translation>前視畫面</translation>
    </message>
    <message>
        <source>Front video 120° view</source>
        <translation>前視畫面120°視角</translation>
    </message>
    <message>
        <source>Front video 180° view</source>
        <translation>前視畫面180°視角</translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation>無效</translation>
    </message>
    <message>
        <source>Left and right video</source>
        <translation>左右畫面</translation>
    </message>
    <message>
        <source>Left video</source>
        <translation>左視畫面</translation>
    </message>
    <message>
        <source>Normal mode</source>
        <translation>正常模式</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Panoramic Video</source>
        <translation>環景影像</translation>
    </message>
    <message>
        <source>Parallel mode</source>
        <translation>平行模式</translation>
    </message>
    <message>
        <source>Parking track mode</source>
        <translation>停車軌跡模式</translation>
    </message>
    <message>
        <source>Right video</source>
        <translation>右視畫面</translation>
    </message>
    <message>
        <source>null</source>
        <translation>無</translation>
    </message>
    <message>
        <source>right Video</source>
        <translation>右視畫面</translation>
    </message>
    <message>
        <source>video Status</source>
        <translation>畫面狀態</translation>
    </message>
</context>
<context>
    <name>CarInfoItem65_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem65_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>車窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>車窗-左後</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>車窗-右後</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>車窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem65_3</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6級</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左後車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右後車窗開閉</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗開閉</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_10</name>
    <message>
        <source>Air conditioning system-air recirculation(activated after using glass water)</source>
        <translation>空調系統-空氣內循環（使用玻璃水後啟用）</translation>
    </message>
    <message>
        <source>Air conditioning system-automatic temperature adjustment and cycle control</source>
        <translation>空調系統-自動溫度調節與循環控制</translation>
    </message>
    <message>
        <source>Baltic Sea Blue</source>
        <translation>波羅的海藍</translation>
    </message>
    <message>
        <source>Barcelona Red</source>
        <translation>巴塞羅那紅</translation>
    </message>
    <message>
        <source>Brightness level 1</source>
        <translation>亮度1級</translation>
    </message>
    <message>
        <source>Brightness level 2</source>
        <translation>亮度2級</translation>
    </message>
    <message>
        <source>Brightness level 3</source>
        <translation>亮度3級</translation>
    </message>
    <message>
        <source>Brightness level 4</source>
        <translation>亮度4級</translation>
    </message>
    <message>
        <source>Coffee</source>
        <translation>咖啡色</translation>
    </message>
    <message>
        <source>Colorful Clouds</source>
        <translation>七彩祥雲</translation>
    </message>
    <message>
        <source>Desert Gold</source>
        <translation>沙漠金</translation>
    </message>
    <message>
        <source>Hey! Yo!</source>
        <translation>嘿！喲！</translation>
    </message>
    <message>
        <source>Midnight City</source>
        <translation>午夜都市</translation>
    </message>
    <message>
        <source>Monochrome lights</source>
        <translation>單色燈</translation>
    </message>
    <message>
        <source>Norwegian Forest Green</source>
        <translation>挪威森林綠</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Party theme</source>
        <translation>派對主題</translation>
    </message>
    <message>
        <source>Provence Violet</source>
        <translation>普羅旺斯紫</translation>
    </message>
    <message>
        <source>Rear camera-keep the rear camera on</source>
        <translation>後攝像頭-保持後攝像頭開啟</translation>
    </message>
    <message>
        <source>Refreshing Sea</source>
        <translation>清爽海洋</translation>
    </message>
    <message>
        <source>Romance</source>
        <translation>浪漫</translation>
    </message>
    <message>
        <source>Seat heated ventilation-automatic comfort control</source>
        <translation>座椅加熱通風-自動舒適控制</translation>
    </message>
    <message>
        <source>Seat-seat position change tips</source>
        <translation>座椅-座椅位置變化提示</translation>
    </message>
    <message>
        <source>Seat-third row right seat back fold</source>
        <translation>座椅-第三排右側靠背摺疊</translation>
    </message>
    <message>
        <source>Seats-third row left seat back fold</source>
        <translation>座椅-第三排左側靠背摺疊</translation>
    </message>
    <message>
        <source>Sound ambient light-ambient light</source>
        <translation>音樂氛圍燈-氛圍燈</translation>
    </message>
    <message>
        <source>Sound ambient light-brightness</source>
        <translation>音樂氛圍燈-亮度</translation>
    </message>
    <message>
        <source>Sound ambient light-monochromatic light(On)</source>
        <translation>音樂氛圍燈-單色燈（開）</translation>
    </message>
    <message>
        <source>Sound ambient light-music+</source>
        <translation>音樂氛圍燈-音樂+</translation>
    </message>
    <message>
        <source>Sound ambient light-theme color(On)</source>
        <translation>音樂氛圍燈-主題色（開）</translation>
    </message>
    <message>
        <source>Steering wheel heater-automatic comfort control</source>
        <translation>方向盤加熱-自動舒適控制</translation>
    </message>
    <message>
        <source>Travel</source>
        <translation>旅行</translation>
    </message>
    <message>
        <source>Vibrant Orange</source>
        <translation>活力橙</translation>
    </message>
    <message>
        <source>blind spot monitor</source>
        <translation>盲點監測</translation>
    </message>
    <message>
        <source>expand</source>
        <translation>展開</translation>
    </message>
    <message>
        <source>fold</source>
        <translation>摺疊</translation>
    </message>
    <message>
        <source>null</source>
        <translation>無</translation>
    </message>
    <message>
        <source>theme color</source>
        <translation>主題色</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_11</name>
    <message>
        <source>All Views</source>
        <translation>所有視圖</translation>
    </message>
    <message>
        <source>All views</source>
        <translation>所有視圖</translation>
    </message>
    <message>
        <source>Back + Left Back</source>
        <translation>後視+左後視</translation>
    </message>
    <message>
        <source>Back + Right Back</source>
        <translation>後視+右後視</translation>
    </message>
    <message>
        <source>Back Only</source>
        <translation>僅後視</translation>
    </message>
    <message>
        <source>Back view + Down view</source>
        <translation>後視+俯視</translation>
    </message>
    <message>
        <source>Back view + Left view</source>
        <translation>後視+左視</translation>
    </message>
    <message>
        <source>Back view + Right view</source>
        <translation>後視+右視</translation>
    </message>
    <message>
        <source>Backward Only (in Forward Mode)</source>
        <translation>僅後視（前進模式）</translation>
    </message>
    <message>
        <source>Backward Only View (in backward mode)</source>
        <translation>僅後視（倒車模式）</translation>
    </message>
    <message>
        <source>Before and after image status</source>
        <translation>前後影像狀態</translation>
    </message>
    <message>
        <source>Current is backward view</source>
        <translation>目前為後視</translation>
    </message>
    <message>
        <source>Current is forward view</source>
        <translation>目前為前視</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>進入</translation>
    </message>
    <message>
        <source>Exit Panorama</source>
        <translation>退出環景</translation>
    </message>
    <message>
        <source>Forward + Left</source>
        <translation>前視+左視</translation>
    </message>
    <message>
        <source>Forward + Right</source>
        <translation>前視+右視</translation>
    </message>
    <message>
        <source>Forward Only</source>
        <translation>僅前視</translation>
    </message>
    <message>
        <source>Front + Front left</source>
        <translation>前視+左前視</translation>
    </message>
    <message>
        <source>Front + Front right</source>
        <translation>前視+右前視</translation>
    </message>
    <message>
        <source>Front camera only</source>
        <translation>僅前攝像頭</translation>
    </message>
    <message>
        <source>Image 1</source>
        <translation>影像1</translation>
    </message>
    <message>
        <source>Image 2</source>
        <translation>影像2</translation>
    </message>
    <message>
        <source>Image 3</source>
        <translation>影像3</translation>
    </message>
    <message>
        <source>Image 4</source>
        <translation>影像4</translation>
    </message>
    <message>
        <source>Image 5</source>
        <translation>影像5</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Panorama + Backward</source>
        <translation>環景+後視</translation>
    </message>
    <message>
        <source>Panorama + Forward</source>
        <translation>環景+前視</translation>
    </message>
    <message>
        <source>Panoramic image status</source>
        <translation>環景影像狀態</translation>
    </message>
    <message>
        <source>Parking distance warning</source>
        <translation>停車距離警告</translation>
    </message>
    <message>
        <source>Rear camera-enter and exit</source>
        <translation>後攝像頭-進入與退出</translation>
    </message>
    <message>
        <source>Rear samera-image status</source>
        <translation>後攝像頭-影像狀態</translation>
    </message>
    <message>
        <source>Rear view parking guidance</source>
        <translation>後視停車引導</translation>
    </message>
    <message>
        <source>front view mode</source>
        <translation>前視模式</translation>
    </message>
    <message>
        <source>no image</source>
        <translation>無影像</translation>
    </message>
    <message>
        <source>null</source>
        <translation>無</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>rear view mode</source>
        <translation>後視模式</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_12</name>
    <message>
        <source>Front left sensor fault status</source>
        <translation>左前感測器故障狀態</translation>
    </message>
    <message>
        <source>Front left tire-airLeak detection</source>
        <translation>左前輪胎-漏氣檢測</translation>
    </message>
    <message>
        <source>Front left tire-battery status</source>
        <translation>左前輪胎-電池狀態</translation>
    </message>
    <message>
        <source>Front left tire-sensor pressure status</source>
        <translation>左前輪胎-感測器壓力狀態</translation>
    </message>
    <message>
        <source>Front left tire-sensor temperature status</source>
        <translation>左前輪胎-感測器溫度狀態</translation>
    </message>
    <message>
        <source>Front right sensor fault status</source>
        <translation>右前感測器故障狀態</translation>
    </message>
    <message>
        <source>Left front tire pressure value</source>
        <translation>左前胎壓值</translation>
    </message>
    <message>
        <source>Left rear tire pressure value</source>
        <translation>左後胎壓值</translation>
    </message>
    <message>
        <source>No air leakage</source>
        <translation>無漏氣</translation>
    </message>
    <message>
        <source>No trouble</source>
        <translation>無故障</translation>
    </message>
    <message>
        <source>Rear left sensor fault status</source>
        <translation>左後感測器故障狀態</translation>
    </message>
    <message>
        <source>Rear right sensor fault status</source>
        <translation>右後感測器故障狀態</translation>
    </message>
    <message>
        <source>Right front tire pressure value</source>
        <translation>右前胎壓值</translation>
    </message>
    <message>
        <source>Right rear tire pressure value</source>
        <translation>右後胎壓值</translation>
    </message>
    <message>
        <source>Severely high</source>
        <translation>嚴重偏高</translation>
    </message>
    <message>
        <source>Severely low</source>
        <translation>嚴重偏低</translation>
    </message>
    <message>
        <source>Temperature-back left</source>
        <translation>溫度-左後</translation>
    </message>
    <message>
        <source>Temperature-back right</source>
        <translation>溫度-右後</translation>
    </message>
    <message>
        <source>Temperature-front reft</source>
        <translation>溫度-左前</translation>
    </message>
    <message>
        <source>Temperature-front right</source>
        <translation>溫度-右前</translation>
    </message>
    <message>
        <source>air leak</source>
        <translation>漏氣</translation>
    </message>
    <message>
        <source>battery is normal</source>
        <translation>電池正常</translation>
    </message>
    <message>
        <source>battery is too low</source>
        <translation>電池電量過低</translation>
    </message>
    <message>
        <source>front right tire--battery status</source>
        <translation>右前輪胎-電池狀態</translation>
    </message>
    <message>
        <source>front right tire-air leak detection</source>
        <translation>右前輪胎-漏氣檢測</translation>
    </message>
    <message>
        <source>front right tire-sensor pressure status</source>
        <translation>右前輪胎-感測器壓力狀態</translation>
    </message>
    <message>
        <source>front right tire-sensor temperature status</source>
        <translation>右前輪胎-感測器溫度狀態</translation>
    </message>
    <message>
        <source>malfunction</source>
        <translation>故障</translation>
    </message>
    <message>
        <source>normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>rear left tire-air leak detection</source>
        <translation>左後輪胎-漏氣檢測</translation>
    </message>
    <message>
        <source>rear left tire-battery status</source>
        <translation>左後輪胎-電池狀態</translation>
    </message>
    <message>
        <source>rear left tire-sensor pressure status</source>
        <translation>左後輪胎-感測器壓力狀態</translation>
    </message>
    <message>
        <source>rear left tire-sensor temperature status</source>
        <translation>左後輪胎-感測器溫度狀態</translation>
    </message>
    <message>
        <source>rear right tire-air leak detection</source>
        <translation>右後輪胎-漏氣檢測</translation>
    </message>
    <message>
        <source>rear right tire-battery status</source>
        <translation>右後輪胎-電池狀態</translation>
    </message>
    <message>
        <source>rear right tire-sensor pressure status</source>
        <translation>右後輪胎-感測器壓力狀態</translation>
    </message>
    <message>
        <source>rear right tire-sensor temperature status</source>
        <translation>右後輪胎-感測器溫度狀態</translation>
    </message>
    <message>
        <source>slightly higher</source>
        <translation>略偏高</translation>
    </message>
    <message>
        <source>slightly lower</source>
        <translation>略偏低</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_13</name>
    <message>
        <source>Backlight adjustment</source>
        <translation>背光調節</translation>
    </message>
    <message>
        <source>Backrest-backrest of the seat</source>
        <translation>靠背-座椅靠背</translation>
    </message>
    <message>
        <source>Backrest-seat back down</source>
        <translation>靠背-靠背向下</translation>
    </message>
    <message>
        <source>Backrest-seat back forward</source>
        <translation>靠背-靠背向前</translation>
    </message>
    <message>
        <source>Backrest-seat back up</source>
        <translation>靠背-靠背向上</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Compass information-bearing</source>
        <translation>指南針資訊-方位</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Hybrid</source>
        <translation>混動</translation>
    </message>
    <message>
        <source>Hybrid/Electric Vehicles</source>
        <translation>混動/電動車型</translation>
    </message>
    <message>
        <source>Model selection</source>
        <translation>車型選擇</translation>
    </message>
    <message>
        <source>Non-hybrid/electric models</source>
        <translation>非混動/電動車型</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Outside temperature information</source>
        <translation>車外溫度資訊</translation>
    </message>
    <message>
        <source>Seat seat down</source>
        <translation>座椅坐墊向下</translation>
    </message>
    <message>
        <source>Seat-seat back</source>
        <translation>座椅-座椅向後</translation>
    </message>
    <message>
        <source>Seat-seat forward</source>
        <translation>座椅-座椅向前</translation>
    </message>
    <message>
        <source>Seat-seat lift</source>
        <translation>座椅-座椅升高</translation>
    </message>
    <message>
        <source>Seat-seat lower</source>
        <translation>座椅-座椅降低</translation>
    </message>
    <message>
        <source>Seat-seat up</source>
        <translation>座椅-座椅向上</translation>
    </message>
    <message>
        <source>language settings</source>
        <translation>語言設定</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>車窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>車窗-左後</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>車窗-右後</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>車窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_3</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6級</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左後車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右後車窗開閉</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗開閉</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_4</name>
    <message>
        <source>Alto</source>
        <translation>中音</translation>
    </message>
    <message>
        <source>Treble</source>
        <translation>高音</translation>
    </message>
    <message>
        <source>Volume adjustment</source>
        <translation>音量調節</translation>
    </message>
    <message>
        <source>balance left and right</source>
        <translation>左右平衡</translation>
    </message>
    <message>
        <source>bass</source>
        <translation>低音</translation>
    </message>
    <message>
        <source>front and rear balance</source>
        <translation>前後平衡</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_5</name>
    <message>
        <source>100KM/H</source>
        <translation>100KM/H</translation>
    </message>
    <message>
        <source>110KM/H</source>
        <translation>110KM/H</translation>
    </message>
    <message>
        <source>120KM/H</source>
        <translation>120KM/H</translation>
    </message>
    <message>
        <source>130KM/H</source>
        <translation>130KM/H</translation>
    </message>
    <message>
        <source>90KM/H</source>
        <translation>90KM/H</translation>
    </message>
    <message>
        <source>COMFORT</source>
        <translation>舒適</translation>
    </message>
    <message>
        <source>COMFORT mode</source>
        <translation>舒適模式</translation>
    </message>
    <message>
        <source>COMFORT mode-air conditioning control</source>
        <translation>舒適模式-空調控制</translation>
    </message>
    <message>
        <source>COMFORT mode-coasting energy regeneration</source>
        <translation>舒適模式-滑行能量回收</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Driving mode information</source>
        <translation>駕駛模式資訊</translation>
    </message>
    <message>
        <source>ECO</source>
        <translation>ECO</translation>
    </message>
    <message>
        <source>ECO energy saving-CO2 emission reduction(CO2 emission reduction)</source>
        <translation>ECO節能-CO2減排（CO2減排量）</translation>
    </message>
    <message>
        <source>ECO energy saving-CO2 emission reduction(travel distance)</source>
        <translation>ECO節能-CO2減排（行駛里程）</translation>
    </message>
    <message>
        <source>ECO mode</source>
        <translation>ECO模式</translation>
    </message>
    <message>
        <source>ECO mode-air Conditioning control</source>
        <translation>ECO模式-空調控制</translation>
    </message>
    <message>
        <source>ECO mode-coasting energy regeneration</source>
        <translation>ECO模式-滑行能量回收</translation>
    </message>
    <message>
        <source>ECO mode-speed limit</source>
        <translation>ECO模式-限速</translation>
    </message>
    <message>
        <source>Grade 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Grade 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Grade 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>SMART</source>
        <translation>智慧</translation>
    </message>
    <message>
        <source>SPORT</source>
        <translation>SPORT</translation>
    </message>
    <message>
        <source>SPORT mode</source>
        <translation>SPORT模式</translation>
    </message>
    <message>
        <source>SPORT mode-air conditioning control</source>
        <translation>SPORT模式-空調控制</translation>
    </message>
    <message>
        <source>SPORT mode-coasting Energy regeneration</source>
        <translation>SPORT模式-滑行能量回收</translation>
    </message>
    <message>
        <source>Sure</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>Vehicle settings-drive mode reset</source>
        <translation>車輛設定-駕駛模式重設</translation>
    </message>
    <message>
        <source>driving mode</source>
        <translation>駕駛模式</translation>
    </message>
    <message>
        <source>none</source>
        <translation>無</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>標準</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_6</name>
    <message>
        <source>100%</source>
        <translation>100%</translation>
    </message>
    <message>
        <source>50%</source>
        <translation>50%</translation>
    </message>
    <message>
        <source>60%</source>
        <translation>60%</translation>
    </message>
    <message>
        <source>70%</source>
        <translation>70%</translation>
    </message>
    <message>
        <source>80%</source>
        <translation>80%</translation>
    </message>
    <message>
        <source>90%</source>
        <translation>90%</translation>
    </message>
    <message>
        <source>Charging settings-set the aamount Of charge(normal)-battery percentage</source>
        <translation>充電設定-充電量（普通）-電量百分比</translation>
    </message>
    <message>
        <source>Charging settings-set the aamount of charge(full)-approximate mileage</source>
        <translation>充電設定-設定充電量（充滿）-大約里程</translation>
    </message>
    <message>
        <source>Charging settings-set the aamount of charge(full)-battery percentage</source>
        <translation>充電設定-充電量（充滿）-電量百分比</translation>
    </message>
    <message>
        <source>Charging settings-set the aamount of charge(normal)-approximate mileage</source>
        <translation>充電設定-設定充電量（普通）-大約里程</translation>
    </message>
    <message>
        <source>Estimated charging time(fast charging)</source>
        <translation>預計充電時間（快充）</translation>
    </message>
    <message>
        <source>Power consumption-instant consumption(air conditioning system)</source>
        <translation>電耗-瞬時電耗（空調系統）</translation>
    </message>
    <message>
        <source>Power consumption-instant consumption(battery care)</source>
        <translation>電耗-瞬時電耗（電池養護）</translation>
    </message>
    <message>
        <source>Power consumption-instant consumption(electronic equipment)</source>
        <translation>電耗-瞬時電耗（電子裝置）</translation>
    </message>
    <message>
        <source>Power consumption-instant consumption(legacy system)</source>
        <translation>電耗-瞬時電耗（其他系統）</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_7</name>
    <message>
        <source>Energy flowchart UI</source>
        <translation>能量流程圖介面</translation>
    </message>
    <message>
        <source>Estimated charging time-cradle charging</source>
        <translation>預計充電時間-充電樁充電</translation>
    </message>
    <message>
        <source>Estimated charging time-portable charging</source>
        <translation>預計充電時間-攜帶式充電</translation>
    </message>
    <message>
        <source>UI0 Hybrid Mode</source>
        <translation>UI0 混動模式</translation>
    </message>
    <message>
        <source>UI1 Idle Mode</source>
        <translation>UI1 怠速模式</translation>
    </message>
    <message>
        <source>UI10 is charging</source>
        <translation>UI10 充電中</translation>
    </message>
    <message>
        <source>UI11 is charging</source>
        <translation>UI11 充電中</translation>
    </message>
    <message>
        <source>UI2 Motor Running</source>
        <translation>UI2 馬達執行</translation>
    </message>
    <message>
        <source>UI3 Hybrid Mode</source>
        <translation>UI3 混動模式</translation>
    </message>
    <message>
        <source>UI4 Engine Running</source>
        <translation>UI4 引擎執行</translation>
    </message>
    <message>
        <source>UI5 Charging</source>
        <translation>UI5 充電</translation>
    </message>
    <message>
        <source>UI6 Charging</source>
        <translation>UI6 充電</translation>
    </message>
    <message>
        <source>UI7 Transmitter Braking</source>
        <translation>UI7 發電機煞車</translation>
    </message>
    <message>
        <source>UI8 Charging</source>
        <translation>UI8 充電</translation>
    </message>
    <message>
        <source>UI9 is charging</source>
        <translation>UI9 充電中</translation>
    </message>
    <message>
        <source>battery percentage</source>
        <translation>電量百分比</translation>
    </message>
    <message>
        <source>battery power</source>
        <translation>電池電量</translation>
    </message>
    <message>
        <source>electricity</source>
        <translation>電能</translation>
    </message>
    <message>
        <source>gasoline</source>
        <translation>汽油</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_8</name>
    <message>
        <source>reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>ECO level</source>
        <translation>ECO等級</translation>
    </message>
    <message>
        <source>Energy consumption record</source>
        <translation>能耗記錄</translation>
    </message>
    <message>
        <source>Energy information: initialization</source>
        <translation>能量資訊：初始化</translation>
    </message>
    <message>
        <source>Hybrid fuel consumption</source>
        <translation>混動油耗</translation>
    </message>
    <message>
        <source>Motor energy consumption</source>
        <translation>馬達能耗</translation>
    </message>
    <message>
        <source>average energy consumption</source>
        <translation>平均能耗</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_9</name>
    <message>
        <source>Appointment time-repeat(Friday)</source>
        <translation>預約時間-重複（星期五）</translation>
    </message>
    <message>
        <source>Appointment time-repeat(Monday)</source>
        <translation>預約時間-重複（星期一）</translation>
    </message>
    <message>
        <source>Appointment time-repeat(Saturday)</source>
        <translation>預約時間-重複（星期六）</translation>
    </message>
    <message>
        <source>Appointment time-repeat(Sunday)</source>
        <translation>預約時間-重複（星期日）</translation>
    </message>
    <message>
        <source>Appointment time-repeat(Thursday)</source>
        <translation>預約時間-重複（星期四）</translation>
    </message>
    <message>
        <source>Appointment time-repeat(Tuesday)</source>
        <translation>預約時間-重複（星期二）</translation>
    </message>
    <message>
        <source>Appointment time-repeat(Wednesday)</source>
        <translation>預約時間-重複（星期三）</translation>
    </message>
    <message>
        <source>Appointment time-start time(hour)</source>
        <translation>預約時間-開始時間（時）</translation>
    </message>
    <message>
        <source>Appointment time-start time(minute)</source>
        <translation>預約時間-開始時間（分）</translation>
    </message>
    <message>
        <source>Appointment time_end time(hour)</source>
        <translation>預約時間-結束時間（時）</translation>
    </message>
    <message>
        <source>Appointment time_end time(minute)</source>
        <translation>預約時間-結束時間（分）</translation>
    </message>
    <message>
        <source>Charge only during discounted time</source>
        <translation>僅在優惠時段充電</translation>
    </message>
    <message>
        <source>Charging current-defrost before scheduling an air conditionere</source>
        <translation>充電電流-預約空調前除霜</translation>
    </message>
    <message>
        <source>Charging current-discounted time charging</source>
        <translation>充電電流-優惠時段充電</translation>
    </message>
    <message>
        <source>Charging current-reservation air conditioning temperature</source>
        <translation>充電電流-預約空調溫度</translation>
    </message>
    <message>
        <source>Charging current-reservation air conditioning temperature switch</source>
        <translation>充電電流-預約空調溫度開關</translation>
    </message>
    <message>
        <source>Charging current-reserve charging time</source>
        <translation>充電電流-預約充電時間</translation>
    </message>
    <message>
        <source>Charging current-set normal charge current(portable)</source>
        <translation>充電電流-設定普通充電電流（攜帶式）</translation>
    </message>
    <message>
        <source>Charging current-set the normal charging current(charging pile)</source>
        <translation>充電電流-設定普通充電電流（充電樁）</translation>
    </message>
    <message>
        <source>Charging settings-scheduled charging time-end time(hour)</source>
        <translation>充電設定-預約充電時間-結束時間（時）</translation>
    </message>
    <message>
        <source>Charging settings-scheduled charging time-end time(minute)</source>
        <translation>充電設定-預約充電時間-結束時間（分）</translation>
    </message>
    <message>
        <source>Charging settings-scheduled charging time-start time(hour)</source>
        <translation>充電設定-預約充電時間-開始時間（時）</translation>
    </message>
    <message>
        <source>Charging settings-scheduled charging time-start time(minute)</source>
        <translation>充電設定-預約充電時間-開始時間（分）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1</source>
        <translation>充電設定-時間設定1</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1(Minute)</source>
        <translation>充電設定-時間設定1（分）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1(hour)</source>
        <translation>充電設定-時間設定1（時）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1-repeat(Friday)</source>
        <translation>充電設定-時間設定1-重複（星期五）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1-repeat(Monday)</source>
        <translation>充電設定-時間設定1-重複（星期一）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1-repeat(Saturday)</source>
        <translation>充電設定-時間設定1-重複（星期六）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1-repeat(Sunday)</source>
        <translation>充電設定-時間設定1-重複（星期日）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1-repeat(Thursday)</source>
        <translation>充電設定-時間設定1-重複（星期四）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1-repeat(Tuesday)</source>
        <translation>充電設定-時間設定1-重複（星期二）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1-repeat(Wednesday)</source>
        <translation>充電設定-時間設定1-重複（星期三）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2</source>
        <translation>充電設定-時間設定2</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2(hour)</source>
        <translation>充電設定-時間設定2（時）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2(minute)</source>
        <translation>充電設定-時間設定2（分）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2-repeat(Friday)</source>
        <translation>充電設定-時間設定2-重複（星期五）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2-repeat(Monday)</source>
        <translation>充電設定-時間設定2-重複（星期一）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2-repeat(Saturday)</source>
        <translation>充電設定-時間設定2-重複（星期六）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2-repeat(Sunday)</source>
        <translation>充電設定-時間設定2-重複（星期日）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2-repeat(Thursday)</source>
        <translation>充電設定-時間設定2-重複（星期四）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2-repeat(Tuesday)</source>
        <translation>充電設定-時間設定2-重複（星期二）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2-repeat(Wednesday)</source>
        <translation>充電設定-時間設定2-重複（星期三）</translation>
    </message>
    <message>
        <source>How To Set Up An Appointment</source>
        <translation>預約設定方式</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Priority charging during discounted time</source>
        <translation>優惠時段優先充電</translation>
    </message>
    <message>
        <source>biggest</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>have</source>
        <translation>是</translation>
    </message>
    <message>
        <source>least</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>none</source>
        <translation>否</translation>
    </message>
    <message>
        <source>reduce</source>
        <translation>減少</translation>
    </message>
    <message>
        <source>way 1</source>
        <translation>方式1</translation>
    </message>
    <message>
        <source>way 2</source>
        <translation>方式2</translation>
    </message>
</context>
<context>
    <name>CarInfoItem70_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem70_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>車窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>車窗-左後</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>車窗-右後</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>車窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem70_3</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6級</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左後車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右後車窗開閉</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗開閉</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem71_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem71_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>車窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>車窗-左後</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>車窗-右後</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>車窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem71_3</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6級</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左後車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右後車窗開閉</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗開閉</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_10</name>
    <message>
        <source>ABS warning indicator</source>
        <translation>ABS警告指示燈</translation>
    </message>
    <message>
        <source>Airbag warning indicator</source>
        <translation>安全氣囊警告指示燈</translation>
    </message>
    <message>
        <source>Corner sensor warning indicator</source>
        <translation>轉角感測器警告指示燈</translation>
    </message>
    <message>
        <source>Cruise control malfunction warning indicator</source>
        <translation>定速巡航故障警告指示燈</translation>
    </message>
    <message>
        <source>EPB system fault warningLight</source>
        <translation>EPB系統故障警告燈</translation>
    </message>
    <message>
        <source>Engine condensate temperature indicator Light</source>
        <translation>引擎冷卻液溫度指示燈</translation>
    </message>
    <message>
        <source>Engine emissions malfunction</source>
        <translation>引擎排放故障</translation>
    </message>
    <message>
        <source>Engine malfunction warning light</source>
        <translation>引擎故障警告燈</translation>
    </message>
    <message>
        <source>Handbrake warning light</source>
        <translation>手煞車警告燈</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Remote key no power warning indicator</source>
        <translation>遙控鑰匙電量耗盡警告指示燈</translation>
    </message>
    <message>
        <source>Seat belt unfastened warning indicator</source>
        <translation>安全帶未系警告指示燈</translation>
    </message>
    <message>
        <source>Traction control off warning light</source>
        <translation>牽引力控制關閉警告燈</translation>
    </message>
    <message>
        <source>oil warning light</source>
        <translation>機油警告燈</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_11</name>
    <message>
        <source>Comfortable and convenient-car search instructions</source>
        <translation>舒適便捷-尋車指示</translation>
    </message>
    <message>
        <source>Comfortable and convenient-smart near car unlock</source>
        <translation>舒適便捷-智慧近車解鎖</translation>
    </message>
    <message>
        <source>Comfortable and convenient-take me home</source>
        <translation>舒適便捷-伴我回家</translation>
    </message>
    <message>
        <source>Comfortable and convenient-unlock mode</source>
        <translation>舒適便捷-解鎖模式</translation>
    </message>
    <message>
        <source>Driving maintenance-tire pressure reset</source>
        <translation>行車保養-胎壓重設</translation>
    </message>
    <message>
        <source>reset</source>
        <translation>重設</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_12</name>
    <message>
        <source>30s</source>
        <translation>30s</translation>
    </message>
    <message>
        <source>60s</source>
        <translation>60s</translation>
    </message>
    <message>
        <source>90s</source>
        <translation>90s</translation>
    </message>
    <message>
        <source>Advanced driver assistance-Lane departure warning</source>
        <translation>先進駕駛輔助-車道偏離警告</translation>
    </message>
    <message>
        <source>Advanced driver assistance-alarm sensitivity</source>
        <translation>先進駕駛輔助-警示靈敏度</translation>
    </message>
    <message>
        <source>Advanced driver assistance-alarm tone</source>
        <translation>先進駕駛輔助-警示提示音</translation>
    </message>
    <message>
        <source>Advanced driver assistance-assist mode</source>
        <translation>先進駕駛輔助-輔助模式</translation>
    </message>
    <message>
        <source>Advanced driver assistance-assist mode1</source>
        <translation>先進駕駛輔助-輔助模式1</translation>
    </message>
    <message>
        <source>Advanced driver assistance-blind spot detection</source>
        <translation>先進駕駛輔助-盲點偵測</translation>
    </message>
    <message>
        <source>Advanced driver assistance-forward collision Assist</source>
        <translation>先進駕駛輔助-前碰撞輔助</translation>
    </message>
    <message>
        <source>Advanced driver assistance-lane change assist</source>
        <translation>先進駕駛輔助-變換車道輔助</translation>
    </message>
    <message>
        <source>Advanced driver assistance-lane keeping assist</source>
        <translation>先進駕駛輔助-車道維持輔助</translation>
    </message>
    <message>
        <source>Advanced driver assistance-rear driving assistance system</source>
        <translation>先進駕駛輔助-後方行車輔助系統</translation>
    </message>
    <message>
        <source>Advanced driver assistance-rear traffic warning</source>
        <translation>先進駕駛輔助-後方交通警告</translation>
    </message>
    <message>
        <source>Advanced driver assistance-speed assist</source>
        <translation>先進駕駛輔助-速度輔助</translation>
    </message>
    <message>
        <source>Advanced driver assistance-traffic jam assist</source>
        <translation>先進駕駛輔助-交通擁堵輔助</translation>
    </message>
    <message>
        <source>Advanced driver assistance-vibration reminder</source>
        <translation>先進駕駛輔助-振動提醒</translation>
    </message>
    <message>
        <source>Air conditioner-air volume in automatic mode</source>
        <translation>空調-自動模式風量</translation>
    </message>
    <message>
        <source>Air conditioner-rear window defrost and defogging linkage</source>
        <translation>空調-後窗除霜除霧聯動</translation>
    </message>
    <message>
        <source>Air conditioner-zone temperature settings</source>
        <translation>空調-分區溫度設定</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>警示</translation>
    </message>
    <message>
        <source>Alarm + Lane Departure Assist</source>
        <translation>警示+車道偏離輔助</translation>
    </message>
    <message>
        <source>Alarm + Lane Keeping</source>
        <translation>警示+車道維持</translation>
    </message>
    <message>
        <source>Alarm + automatic braking</source>
        <translation>警示+自動煞車</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>所有車門</translation>
    </message>
    <message>
        <source>Assisted driving-parking assist system</source>
        <translation>輔助駕駛-停車輔助系統</translation>
    </message>
    <message>
        <source>Assisted driving-pedestrian warning sound volume</source>
        <translation>輔助駕駛-行人警示音音量</translation>
    </message>
    <message>
        <source>Assisted driving-warning tones for pedestrians</source>
        <translation>輔助駕駛-行人警示音</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Comfort</source>
        <translation>舒適</translation>
    </message>
    <message>
        <source>Comfortable and convenient-automatic folding and unfolding of exterior mirrors</source>
        <translation>舒適便捷-外後視鏡自動摺疊展開</translation>
    </message>
    <message>
        <source>Comfortable and convenient-car search instructions</source>
        <translation>舒適便捷-尋車指示</translation>
    </message>
    <message>
        <source>Comfortable and convenient-driving lock</source>
        <translation>舒適便捷-行車上鎖</translation>
    </message>
    <message>
        <source>Comfortable and convenient-smart near car unlock</source>
        <translation>舒適便捷-智慧近車解鎖</translation>
    </message>
    <message>
        <source>Comfortable and convenient-steering feel</source>
        <translation>舒適便捷-轉向手感</translation>
    </message>
    <message>
        <source>Comfortable and convenient-take me home</source>
        <translation>舒適便捷-伴我回家</translation>
    </message>
    <message>
        <source>Comfortable and convenient-unlock mode</source>
        <translation>舒適便捷-解鎖模式</translation>
    </message>
    <message>
        <source>Default dual zone</source>
        <translation>預設雙區</translation>
    </message>
    <message>
        <source>Default last time</source>
        <translation>預設上次</translation>
    </message>
    <message>
        <source>Default single zone</source>
        <translation>預設單區</translation>
    </message>
    <message>
        <source>Driver&apos;s side only</source>
        <translation>僅駕駛員側</translation>
    </message>
    <message>
        <source>Driving maintenance-body stability control</source>
        <translation>行車保養-車身穩定控制</translation>
    </message>
    <message>
        <source>Driving maintenance-economical driving</source>
        <translation>行車保養-經濟駕駛</translation>
    </message>
    <message>
        <source>Driving maintenance-steep descent control system</source>
        <translation>行車保養-陡坡緩降系統</translation>
    </message>
    <message>
        <source>Driving maintenance-tire pressure reset</source>
        <translation>行車保養-胎壓重設</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Intelligent speed limit</source>
        <translation>智慧限速</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>大</translation>
    </message>
    <message>
        <source>Lighting-car search indication duration</source>
        <translation>照明-尋車指示時長</translation>
    </message>
    <message>
        <source>Lighting-take me home and keep the lights on</source>
        <translation>照明-伴我回家保持燈亮</translation>
    </message>
    <message>
        <source>Lighting-the welcome light stays on</source>
        <translation>照明-迎賓燈常亮</translation>
    </message>
    <message>
        <source>Lighting-welcome lights</source>
        <translation>照明-迎賓燈</translation>
    </message>
    <message>
        <source>Lights only</source>
        <translation>僅燈光</translation>
    </message>
    <message>
        <source>Lights+Speakers</source>
        <translation>燈光+揚聲器</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Manual speed limit</source>
        <translation>手動限速</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Meter brightness</source>
        <translation>儀表亮度</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Overspeed alarm</source>
        <translation>超速警示</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>小</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>運動</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>end</source>
        <translation>結束</translation>
    </message>
    <message>
        <source>language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>start</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>sunroof status</source>
        <translation>天窗狀態</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_13</name>
    <message>
        <source>1 minute</source>
        <translation>1分鐘</translation>
    </message>
    <message>
        <source>1 minute 30s</source>
        <translation>1分30秒</translation>
    </message>
    <message>
        <source>2 minute</source>
        <translation>2分鐘</translation>
    </message>
    <message>
        <source>2 minute 30s</source>
        <translation>2分30秒</translation>
    </message>
    <message>
        <source>3 minute</source>
        <translation>3分鐘</translation>
    </message>
    <message>
        <source>3 minute 30s</source>
        <translation>3分30秒</translation>
    </message>
    <message>
        <source>30s</source>
        <translation>30s</translation>
    </message>
    <message>
        <source>4 minute</source>
        <translation>4分鐘</translation>
    </message>
    <message>
        <source>4 minute 30s</source>
        <translation>4分30秒</translation>
    </message>
    <message>
        <source>5 minute</source>
        <translation>5分鐘</translation>
    </message>
    <message>
        <source>Lighting Control-take me home duration</source>
        <translation>燈光控制-伴我回家時長</translation>
    </message>
    <message>
        <source>Lighting control-car search indication duration</source>
        <translation>燈光控制-尋車指示時長</translation>
    </message>
    <message>
        <source>Lighting control-car search light(low beam lights)</source>
        <translation>燈光控制-尋車燈（近光燈）</translation>
    </message>
    <message>
        <source>Lighting control-car search light(rear fog lamps)</source>
        <translation>燈光控制-尋車燈（後霧燈）</translation>
    </message>
    <message>
        <source>Lighting control-car search light(reversing lights)</source>
        <translation>燈光控制-尋車燈（倒車燈）</translation>
    </message>
    <message>
        <source>Lighting control-take me home(low beam lights)</source>
        <translation>燈光控制-伴我回家（近光燈）</translation>
    </message>
    <message>
        <source>Lighting control-take me home(rear fog lamps)</source>
        <translation>燈光控制-伴我回家（後霧燈）</translation>
    </message>
    <message>
        <source>Lighting control-take me home(reversing lights)</source>
        <translation>燈光控制-伴我回家（倒車燈）</translation>
    </message>
    <message>
        <source>Lock control-smart near car unlock</source>
        <translation>門鎖控制-智慧近車解鎖</translation>
    </message>
    <message>
        <source>Lock control-travel lock</source>
        <translation>門鎖控制-行車上鎖</translation>
    </message>
    <message>
        <source>Lock control-unlock</source>
        <translation>門鎖控制-解鎖</translation>
    </message>
    <message>
        <source>Lock control-unlock mode</source>
        <translation>門鎖控制-解鎖模式</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_14</name>
    <message>
        <source>1 minute</source>
        <translation>1分鐘</translation>
    </message>
    <message>
        <source>1 minute 30s</source>
        <translation>1分30秒</translation>
    </message>
    <message>
        <source>2 minute</source>
        <translation>2分鐘</translation>
    </message>
    <message>
        <source>2 minute 30s</source>
        <translation>2分30秒</translation>
    </message>
    <message>
        <source>3 minute</source>
        <translation>3分鐘</translation>
    </message>
    <message>
        <source>3 minute 30s</source>
        <translation>3分30秒</translation>
    </message>
    <message>
        <source>30s</source>
        <translation>30s</translation>
    </message>
    <message>
        <source>4 minute</source>
        <translation>4分鐘</translation>
    </message>
    <message>
        <source>4 minute 30s</source>
        <translation>4分30秒</translation>
    </message>
    <message>
        <source>5 minute</source>
        <translation>5分鐘</translation>
    </message>
    <message>
        <source>60s</source>
        <translation>60s</translation>
    </message>
    <message>
        <source>90s</source>
        <translation>90s</translation>
    </message>
    <message>
        <source>Air conditioner-air volume in automatic mode</source>
        <translation>空調-自動模式風量</translation>
    </message>
    <message>
        <source>Air conditioner-outside air quality sensor sensitivity</source>
        <translation>空調-車外空氣品質感測器靈敏度</translation>
    </message>
    <message>
        <source>Air conditioner-rear window defrost and defogging linkage</source>
        <translation>空調-後窗除霜除霧聯動</translation>
    </message>
    <message>
        <source>Air conditioner-zone temperature settings</source>
        <translation>空調-分區溫度設定</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>警示</translation>
    </message>
    <message>
        <source>Alarm + Lane Departure Assist</source>
        <translation>警示+車道偏離輔助</translation>
    </message>
    <message>
        <source>Alarm + Lane Keeping</source>
        <translation>警示+車道維持</translation>
    </message>
    <message>
        <source>All closed</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>所有車門</translation>
    </message>
    <message>
        <source>Assisted driving-Lane change assist system</source>
        <translation>輔助駕駛-變換車道輔助系統</translation>
    </message>
    <message>
        <source>Assisted driving-alarm sensitivity</source>
        <translation>輔助駕駛-警示靈敏度</translation>
    </message>
    <message>
        <source>Assisted driving-alarm tone</source>
        <translation>輔助駕駛-警示提示音</translation>
    </message>
    <message>
        <source>Assisted driving-alert pedestrian sound</source>
        <translation>輔助駕駛-行人警示音</translation>
    </message>
    <message>
        <source>Assisted driving-assist mode</source>
        <translation>輔助駕駛-輔助模式</translation>
    </message>
    <message>
        <source>Assisted driving-blind spot detection</source>
        <translation>輔助駕駛-盲點偵測</translation>
    </message>
    <message>
        <source>Assisted driving-forward ollision assist</source>
        <translation>輔助駕駛-前碰撞輔助</translation>
    </message>
    <message>
        <source>Assisted driving-lane departure warning</source>
        <translation>輔助駕駛-車道偏離警告</translation>
    </message>
    <message>
        <source>Assisted driving-lane keeping assist</source>
        <translation>輔助駕駛-車道維持輔助</translation>
    </message>
    <message>
        <source>Assisted driving-parking assist system</source>
        <translation>輔助駕駛-停車輔助系統</translation>
    </message>
    <message>
        <source>Assisted driving-pedestrian warning sound volume</source>
        <translation>輔助駕駛-行人警示音音量</translation>
    </message>
    <message>
        <source>Assisted driving-rear driving assistance system</source>
        <translation>輔助駕駛-後方行車輔助系統</translation>
    </message>
    <message>
        <source>Assisted driving-rear traffic warning</source>
        <translation>輔助駕駛-後方交通警告</translation>
    </message>
    <message>
        <source>Assisted driving-speed assist</source>
        <translation>輔助駕駛-速度輔助</translation>
    </message>
    <message>
        <source>Assisted driving-speed limit alarm</source>
        <translation>輔助駕駛-限速警示</translation>
    </message>
    <message>
        <source>Assisted driving-speed limit alarm value</source>
        <translation>輔助駕駛-限速警示值</translation>
    </message>
    <message>
        <source>Assisted driving-traffic jam assist</source>
        <translation>輔助駕駛-交通擁堵輔助</translation>
    </message>
    <message>
        <source>Assisted driving-vibration eminder</source>
        <translation>輔助駕駛-振動提醒</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Comfort</source>
        <translation>舒適</translation>
    </message>
    <message>
        <source>Comfortable and convenient-car search instructions</source>
        <translation>舒適便捷-尋車指示</translation>
    </message>
    <message>
        <source>Comfortable and convenient-steering feel</source>
        <translation>舒適便捷-轉向手感</translation>
    </message>
    <message>
        <source>Comfortable and convenient-take me home</source>
        <translation>舒適便捷-伴我回家</translation>
    </message>
    <message>
        <source>Comfortable and convenient-welcome light</source>
        <translation>舒適便捷-迎賓燈</translation>
    </message>
    <message>
        <source>Default dual area</source>
        <translation>預設雙區</translation>
    </message>
    <message>
        <source>Default last time</source>
        <translation>預設上次</translation>
    </message>
    <message>
        <source>Default single area</source>
        <translation>預設單區</translation>
    </message>
    <message>
        <source>Driving maintenance-body stability control</source>
        <translation>行車保養-車身穩定控制</translation>
    </message>
    <message>
        <source>Driving maintenance-body stability control mode</source>
        <translation>行車保養-車身穩定控制模式</translation>
    </message>
    <message>
        <source>Driving maintenance-economic model</source>
        <translation>行車保養-經濟模式</translation>
    </message>
    <message>
        <source>Driving maintenance-steep descent control system</source>
        <translation>行車保養-陡坡緩降系統</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Intelligent speed limit</source>
        <translation>智慧限速</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>大</translation>
    </message>
    <message>
        <source>Lighting Control-take me home duration</source>
        <translation>燈光控制-伴我回家時長</translation>
    </message>
    <message>
        <source>Lighting control-car search indication duration</source>
        <translation>燈光控制-尋車指示時長</translation>
    </message>
    <message>
        <source>Lighting control-car search light(low beam lights)</source>
        <translation>燈光控制-尋車燈（近光燈）</translation>
    </message>
    <message>
        <source>Lighting control-car search light(rear fog lamps)</source>
        <translation>燈光控制-尋車燈（後霧燈）</translation>
    </message>
    <message>
        <source>Lighting control-car search light(reversing lights)</source>
        <translation>燈光控制-尋車燈（倒車燈）</translation>
    </message>
    <message>
        <source>Lighting control-take me home(low beam lights)</source>
        <translation>燈光控制-伴我回家（近光燈）</translation>
    </message>
    <message>
        <source>Lighting control-take me home(rear fog lamps)</source>
        <translation>燈光控制-伴我回家（後霧燈）</translation>
    </message>
    <message>
        <source>Lighting control-take me home(reversing lights)</source>
        <translation>燈光控制-伴我回家（倒車燈）</translation>
    </message>
    <message>
        <source>Lights only</source>
        <translation>僅燈光</translation>
    </message>
    <message>
        <source>Lights+Speakers</source>
        <translation>燈光+揚聲器</translation>
    </message>
    <message>
        <source>Lock control-smart near car unlock</source>
        <translation>門鎖控制-智慧近車解鎖</translation>
    </message>
    <message>
        <source>Lock control-travel lock</source>
        <translation>門鎖控制-行車上鎖</translation>
    </message>
    <message>
        <source>Lock control-unlock</source>
        <translation>門鎖控制-解鎖</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Manual speed limit</source>
        <translation>手動限速</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Meter brightness</source>
        <translation>儀表亮度</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Others-automatic folding and unfolding of exterior rearview mirrors</source>
        <translation>其他-外後視鏡自動摺疊展開</translation>
    </message>
    <message>
        <source>Others-radar alarm tone</source>
        <translation>其他-雷達警示音</translation>
    </message>
    <message>
        <source>Overspeed alarm</source>
        <translation>超速警示</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>小</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>運動</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Windows and locks-door lock</source>
        <translation>車窗與門鎖-門鎖</translation>
    </message>
    <message>
        <source>Windows and locks-trunk opening</source>
        <translation>車窗與門鎖-行李廂開啟</translation>
    </message>
    <message>
        <source>driver side only</source>
        <translation>僅駕駛員側</translation>
    </message>
    <message>
        <source>fully open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>sports</source>
        <translation>運動</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>標準</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_15</name>
    <message>
        <source>Air PM2.5</source>
        <translation>空氣PM2.5</translation>
    </message>
    <message>
        <source>Instantaneous current</source>
        <translation>瞬時電流</translation>
    </message>
    <message>
        <source>Instantaneous voltage</source>
        <translation>瞬時電壓</translation>
    </message>
    <message>
        <source>MG-15 Ruiteng</source>
        <translation>MG-15款銳騰</translation>
    </message>
    <message>
        <source>MG-16 Ruiteng</source>
        <translation>MG-16款銳騰</translation>
    </message>
    <message>
        <source>MG-19 EZS</source>
        <translation>MG-19款EZS</translation>
    </message>
    <message>
        <source>MG-19 HS</source>
        <translation>MG-19款HS</translation>
    </message>
    <message>
        <source>MG-19~20 MG6</source>
        <translation>MG-19~20款MG6</translation>
    </message>
    <message>
        <source>MG-20 MG5</source>
        <translation>MG-20款MG5</translation>
    </message>
    <message>
        <source>MG-20 ZS</source>
        <translation>MG-20款ZS</translation>
    </message>
    <message>
        <source>MG-7 ZS</source>
        <translation>MG-7款ZS</translation>
    </message>
    <message>
        <source>Model selection</source>
        <translation>車型選擇</translation>
    </message>
    <message>
        <source>Motor speed</source>
        <translation>馬達轉速</translation>
    </message>
    <message>
        <source>Roewe-17 Roewe Ei6 hybrid</source>
        <translation>榮威-17款榮威Ei6混動</translation>
    </message>
    <message>
        <source>Roewe-18 Roewe RX8 high-end</source>
        <translation>榮威-18款榮威RX8高配</translation>
    </message>
    <message>
        <source>Roewe-21 Roewe i5 (1.5T GT DCT light speed version)</source>
        <translation>榮威-21款榮威i5（1.5T GT DCT光速版）</translation>
    </message>
    <message>
        <source>Roewe-Ei5 low profile</source>
        <translation>榮威-Ei5低配</translation>
    </message>
    <message>
        <source>Roewe-Ei5 mid-spec</source>
        <translation>榮威-Ei5中配</translation>
    </message>
    <message>
        <source>Roewe-Other</source>
        <translation>榮威-其他</translation>
    </message>
    <message>
        <source>Roewe-RX3</source>
        <translation>榮威-RX3</translation>
    </message>
    <message>
        <source>Roewe-Roewe RX5</source>
        <translation>榮威-榮威RX5</translation>
    </message>
    <message>
        <source>Roewe-Roewe RX8</source>
        <translation>榮威-榮威RX8</translation>
    </message>
    <message>
        <source>Roewe-Roewe i5</source>
        <translation>榮威-榮威i5</translation>
    </message>
    <message>
        <source>Roewe-Roewe i6</source>
        <translation>榮威-榮威i6</translation>
    </message>
    <message>
        <source>ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>front radar distance</source>
        <translation>前雷達距離</translation>
    </message>
    <message>
        <source>null</source>
        <translation>無</translation>
    </message>
    <message>
        <source>rear radar distance</source>
        <translation>後雷達距離</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>車窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>車窗-左後</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>車窗-右後</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>車窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_3</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左後車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右後車窗開閉</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗開閉</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_4</name>
    <message>
        <source>km ordinate</source>
        <translation>km縱座標</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_5</name>
    <message>
        <source>km ordinate</source>
        <translation>km縱座標</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_6</name>
    <message>
        <source>Average fuel consumption for the last 250km</source>
        <translation>最近250km平均油耗</translation>
    </message>
    <message>
        <source>Average power consumption for the last 250km</source>
        <translation>最近250km平均電耗</translation>
    </message>
    <message>
        <source>Driving charging mode</source>
        <translation>行車充電模式</translation>
    </message>
    <message>
        <source>Energy recovery class</source>
        <translation>能量回收等級</translation>
    </message>
    <message>
        <source>Energy recovery mode</source>
        <translation>能量回收模式</translation>
    </message>
    <message>
        <source>Engine driving mode</source>
        <translation>引擎驅動模式</translation>
    </message>
    <message>
        <source>Fuel life</source>
        <translation>燃油續航里程</translation>
    </message>
    <message>
        <source>Hybrid system mode</source>
        <translation>混動系統模式</translation>
    </message>
    <message>
        <source>Idle Charge Mode</source>
        <translation>怠速充電模式</translation>
    </message>
    <message>
        <source>Parallel driving mode</source>
        <translation>並聯驅動模式</translation>
    </message>
    <message>
        <source>Pure electric charging mode</source>
        <translation>純電充電模式</translation>
    </message>
    <message>
        <source>Series driving mode</source>
        <translation>串聯驅動模式</translation>
    </message>
    <message>
        <source>battery life</source>
        <translation>純電續航里程</translation>
    </message>
    <message>
        <source>default mode</source>
        <translation>預設模式</translation>
    </message>
    <message>
        <source>light</source>
        <translation>弱</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>中</translation>
    </message>
    <message>
        <source>powerful</source>
        <translation>強</translation>
    </message>
    <message>
        <source>total battery life</source>
        <translation>總續航里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_7</name>
    <message>
        <source>CUSTOM</source>
        <translation>自訂</translation>
    </message>
    <message>
        <source>Intake air temperature</source>
        <translation>進氣溫度</translation>
    </message>
    <message>
        <source>SUPER SPORT</source>
        <translation>超級運動</translation>
    </message>
    <message>
        <source>State under custom-comfort air conditioning</source>
        <translation>自訂狀態-舒適空調</translation>
    </message>
    <message>
        <source>State under custom-dynamic response</source>
        <translation>自訂狀態-動力響應</translation>
    </message>
    <message>
        <source>State under custom-steering feel</source>
        <translation>自訂狀態-轉向手感</translation>
    </message>
    <message>
        <source>coolant temperature</source>
        <translation>冷卻液溫度</translation>
    </message>
    <message>
        <source>driving mode</source>
        <translation>駕駛模式</translation>
    </message>
    <message>
        <source>economy</source>
        <translation>經濟</translation>
    </message>
    <message>
        <source>hydraulics pressure</source>
        <translation>液壓</translation>
    </message>
    <message>
        <source>sports</source>
        <translation>運動</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>turbo pressure</source>
        <translation>渦輪壓力</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_8</name>
    <message>
        <source>Left front tire pressure value</source>
        <translation>左前胎壓值</translation>
    </message>
    <message>
        <source>Left rear tire pressure value</source>
        <translation>左後胎壓值</translation>
    </message>
    <message>
        <source>Right front tire pressure value</source>
        <translation>右前胎壓值</translation>
    </message>
    <message>
        <source>Right rear tire pressure value</source>
        <translation>右後胎壓值</translation>
    </message>
    <message>
        <source>Temperature-back left</source>
        <translation>溫度-左後</translation>
    </message>
    <message>
        <source>Temperature-back right</source>
        <translation>溫度-右後</translation>
    </message>
    <message>
        <source>Temperature-front left</source>
        <translation>溫度-左前</translation>
    </message>
    <message>
        <source>Temperature-front right</source>
        <translation>溫度-右前</translation>
    </message>
    <message>
        <source>Tire pressure back left</source>
        <translation>胎壓-左後</translation>
    </message>
    <message>
        <source>Tire pressure back right</source>
        <translation>胎壓-右後</translation>
    </message>
    <message>
        <source>Tire pressure front left</source>
        <translation>胎壓-左前</translation>
    </message>
    <message>
        <source>Tire pressure front right</source>
        <translation>胎壓-右前</translation>
    </message>
    <message>
        <source>abnormal</source>
        <translation>異常</translation>
    </message>
    <message>
        <source>normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>reset</source>
        <translation>重設</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_9</name>
    <message>
        <source>2D</source>
        <translation>2D</translation>
    </message>
    <message>
        <source>3D</source>
        <translation>3D</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>後</translation>
    </message>
    <message>
        <source>Back Left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back Right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Back Zoom</source>
        <translation>後方放大</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>進入</translation>
    </message>
    <message>
        <source>Front</source>
        <translation>前</translation>
    </message>
    <message>
        <source>Front Left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front Right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Front Zoom</source>
        <translation>前方放大</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Panorama status-car auxiliary line</source>
        <translation>環景狀態-車輛輔助線</translation>
    </message>
    <message>
        <source>Panorama status-condition</source>
        <translation>環景狀態-狀態</translation>
    </message>
    <message>
        <source>Panorama status-features</source>
        <translation>環景狀態-功能</translation>
    </message>
    <message>
        <source>Panorama status-model</source>
        <translation>環景狀態-模式</translation>
    </message>
    <message>
        <source>Panorama status-turn on the turn signal automatically at low speed 360</source>
        <translation>環景狀態-低速打方向燈自動開啟360</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>camera status</source>
        <translation>攝像頭狀態</translation>
    </message>
    <message>
        <source>dynamic</source>
        <translation>動態</translation>
    </message>
    <message>
        <source>dynamic+static</source>
        <translation>動態+靜態</translation>
    </message>
    <message>
        <source>have</source>
        <translation>有</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>static</source>
        <translation>靜態</translation>
    </message>
    <message>
        <source>without</source>
        <translation>無</translation>
    </message>
</context>
<context>
    <name>CarInfoItem74_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem74_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>車窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>車窗-左後</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>車窗-右後</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>車窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem74_3</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6級</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左後車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右後車窗開閉</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗開閉</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem78_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem78_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>車窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>車窗-左後</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>車窗-右後</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>車窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem78_3</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6級</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左後車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右後車窗開閉</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗開閉</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem79_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem79_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>車窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>車窗-左後</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>車窗-右後</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>車窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem79_3</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6級</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左後車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右後車窗開閉</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗開閉</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem87_1</name>
    <message>
        <source>Amplifier</source>
        <translation>擴大機</translation>
    </message>
    <message>
        <source>Amplifier 1</source>
        <translation>擴大機1</translation>
    </message>
    <message>
        <source>Amplifier 2</source>
        <translation>擴大機2</translation>
    </message>
    <message>
        <source>Bass</source>
        <translation>低音</translation>
    </message>
    <message>
        <source>Centrik speaker</source>
        <translation>中置揚聲器</translation>
    </message>
    <message>
        <source>Classical</source>
        <translation>古典</translation>
    </message>
    <message>
        <source>Jazz-Blues</source>
        <translation>爵士-藍調</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>響度</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中音</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Pop-Rock</source>
        <translation>流行-搖滾</translation>
    </message>
    <message>
        <source>Subwoofer</source>
        <translation>重低音</translation>
    </message>
    <message>
        <source>Techno</source>
        <translation>電子</translation>
    </message>
    <message>
        <source>Treble</source>
        <translation>高音</translation>
    </message>
    <message>
        <source>User</source>
        <translation>自訂</translation>
    </message>
    <message>
        <source>Vocal</source>
        <translation>人聲</translation>
    </message>
    <message>
        <source>Volume linked to speed</source>
        <translation>音量隨車速調節</translation>
    </message>
    <message>
        <source>balance left and right</source>
        <translation>左右平衡</translation>
    </message>
    <message>
        <source>front and rear balance</source>
        <translation>前後平衡</translation>
    </message>
    <message>
        <source>sound effect</source>
        <translation>音效</translation>
    </message>
</context>
<context>
    <name>CarInfoItem87_10</name>
    <message>
        <source>Power consumption first grid</source>
        <translation>電耗第一格</translation>
    </message>
    <message>
        <source>Power consumption second grid</source>
        <translation>電耗第二格</translation>
    </message>
    <message>
        <source>Power consumption third grid</source>
        <translation>電耗第三格</translation>
    </message>
    <message>
        <source>Power consumption fourth grid</source>
        <translation>電耗第四格</translation>
    </message>
    <message>
        <source>Power consumption fifth grid</source>
        <translation>電耗第五格</translation>
    </message>
    <message>
        <source>Power consumption sixth grid</source>
        <translation>電耗第六格</translation>
    </message>
    <message>
        <source>Recycle the first grid</source>
        <translation>能量回收第1格</translation>
    </message>
    <message>
        <source>Recycle the second grid</source>
        <translation>能量回收第2格</translation>
    </message>
    <message>
        <source>Recycle the third grid</source>
        <translation>能量回收第3格</translation>
    </message>
    <message>
        <source>Recycle the fourth grid</source>
        <translation>能量回收第4格</translation>
    </message>
    <message>
        <source>Recycle the fifth grid</source>
        <translation>能量回收第5格</translation>
    </message>
    <message>
        <source>Recycle the sixth grid</source>
        <translation>能量回收第6格</translation>
    </message>
    <message>
        <source>Fuel consumption first grid</source>
        <translation>油耗第一格</translation>
    </message>
    <message>
        <source>Fuel consumption second grid</source>
        <translation>油耗第二格</translation>
    </message>
    <message>
        <source>Fuel consumption third grid</source>
        <translation>油耗第三格</translation>
    </message>
    <message>
        <source>Fuel consumption fourth grid</source>
        <translation>油耗第四格</translation>
    </message>
    <message>
        <source>Fuel consumption fifth grid</source>
        <translation>油耗第五格</translation>
    </message>
    <message>
        <source>Fuel consumption sixth grid</source>
        <translation>油耗第六格</translation>
    </message>
    <message>
        <source>0~180min</source>
        <translation>0~180分鐘</translation>
    </message>
    <message>
        <source>0~60min</source>
        <translation>0~60分鐘</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average power consumption</source>
        <translation>平均電耗</translation>
    </message>
    <message>
        <source>Fuel consumption graph-X axis spacing</source>
        <translation>油耗曲線-X軸間距</translation>
    </message>
    <message>
        <source>Power consumption graph-X axis spacing</source>
        <translation>電耗曲線-X軸間距</translation>
    </message>
</context>
<context>
    <name>CarInfoItem87_11</name>
    <message>
        <source>10km</source>
        <translation>10km</translation>
    </message>
    <message>
        <source>20km</source>
        <translation>20km</translation>
    </message>
    <message>
        <source>Charging-total time(Minute)</source>
        <translation>充電-總時間（分）</translation>
    </message>
    <message>
        <source>Charging-total time(hours)</source>
        <translation>充電-總時間（時）</translation>
    </message>
    <message>
        <source>Energy reserve-distance</source>
        <translation>能量儲備-里程</translation>
    </message>
    <message>
        <source>MAX</source>
        <translation>MAX</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>energy reserve</source>
        <translation>能量儲備</translation>
    </message>
</context>
<context>
    <name>CarInfoItem87_2</name>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average fuel consumption 2</source>
        <translation>平均油耗2</translation>
    </message>
    <message>
        <source>Clear the PAGE1 parameter</source>
        <translation>清除頁面1參數</translation>
    </message>
    <message>
        <source>Clear the PAGE2 parameter</source>
        <translation>清除頁面2參數</translation>
    </message>
    <message>
        <source>Default mileage</source>
        <translation>預設里程</translation>
    </message>
    <message>
        <source>Indicates accumulated mileage</source>
        <translation>累計里程</translation>
    </message>
    <message>
        <source>Indicates accumulated mileage 2</source>
        <translation>累計里程2</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Outdoor temperature</source>
        <translation>車外溫度</translation>
    </message>
    <message>
        <source>Page0</source>
        <translation>頁面0</translation>
    </message>
    <message>
        <source>Page1</source>
        <translation>頁面1</translation>
    </message>
    <message>
        <source>Page2</source>
        <translation>頁面2</translation>
    </message>
    <message>
        <source>Set predetermined mileage parameters</source>
        <translation>設定預定里程參數</translation>
    </message>
    <message>
        <source>Set scheduled mileage</source>
        <translation>設定預定里程</translation>
    </message>
    <message>
        <source>Start stop function timing</source>
        <translation>啟停功能計時</translation>
    </message>
    <message>
        <source>Trip computer currently displayed page</source>
        <translation>行車電腦目前顯示頁</translation>
    </message>
    <message>
        <source>average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>average speed 2</source>
        <translation>平均車速2</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>set mileage</source>
        <translation>設定里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem87_3</name>
    <message>
        <source>180° View</source>
        <translation>180°視圖</translation>
    </message>
    <message>
        <source>3008</source>
        <translation>3008</translation>
    </message>
    <message>
        <source>3008,408 before 13 and 13,etc.,keep the original car small screen</source>
        <translation>3008、13款之前的408及13款等，保留原車小螢幕</translation>
    </message>
    <message>
        <source>308,408,C3-XR retain the original car screen</source>
        <translation>308、408、C3-XR保留原車螢幕</translation>
    </message>
    <message>
        <source>360°</source>
        <translation>360°</translation>
    </message>
    <message>
        <source>4008 Keep the original car screen</source>
        <translation>4008保留原車螢幕</translation>
    </message>
    <message>
        <source>Air volume intensity</source>
        <translation>風量強度</translation>
    </message>
    <message>
        <source>Auto View</source>
        <translation>自動視圖</translation>
    </message>
    <message>
        <source>Back View</source>
        <translation>後視圖</translation>
    </message>
    <message>
        <source>Backlight brightness</source>
        <translation>背光亮度</translation>
    </message>
    <message>
        <source>Brazil version C4</source>
        <translation>巴西版C4</translation>
    </message>
    <message>
        <source>Compass information-directions</source>
        <translation>指南針資訊-方向</translation>
    </message>
    <message>
        <source>Driving Assist</source>
        <translation>駕駛輔助</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>進入</translation>
    </message>
    <message>
        <source>Fatigue Monitoring</source>
        <translation>疲勞監測</translation>
    </message>
    <message>
        <source>Front View</source>
        <translation>前視圖</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>High profile</source>
        <translation>高配</translation>
    </message>
    <message>
        <source>LCD meter custom mode(left)</source>
        <translation>液晶儀表自訂模式（左）</translation>
    </message>
    <message>
        <source>LCD meter custom mode(right)</source>
        <translation>液晶儀表自訂模式（右）</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Low profile</source>
        <translation>低配</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>媒體</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Medium profile</source>
        <translation>中配</translation>
    </message>
    <message>
        <source>Mixed Streaming</source>
        <translation>混動能量流</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>導航</translation>
    </message>
    <message>
        <source>Not muted</source>
        <translation>未靜音</translation>
    </message>
    <message>
        <source>Panorama mode</source>
        <translation>環景模式</translation>
    </message>
    <message>
        <source>Panorama state</source>
        <translation>環景狀態</translation>
    </message>
    <message>
        <source>Standard View</source>
        <translation>標準視圖</translation>
    </message>
    <message>
        <source>Tachometer</source>
        <translation>轉速錶</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>溫度</translation>
    </message>
    <message>
        <source>Trip Computer</source>
        <translation>行車電腦</translation>
    </message>
    <message>
        <source>Zoom View</source>
        <translation>放大視圖</translation>
    </message>
    <message>
        <source>car model</source>
        <translation>車型</translation>
    </message>
    <message>
        <source>configure</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>mute</source>
        <translation>靜音</translation>
    </message>
    <message>
        <source>mute control</source>
        <translation>靜音控制</translation>
    </message>
    <message>
        <source>null</source>
        <translation>無</translation>
    </message>
    <message>
        <source>other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>volume value</source>
        <translation>音量值</translation>
    </message>
</context>
<context>
    <name>CarInfoItem87_4</name>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Tuesday</source>
        <translation>星期二</translation>
    </message>
    <message>
        <source>Wednesday</source>
        <translation>星期三</translation>
    </message>
    <message>
        <source>Thursday</source>
        <translation>星期四</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Sunday</source>
        <translation>星期日</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Preset switch</source>
        <translation>預設開關</translation>
    </message>
    <message>
        <source>time(Minute)</source>
        <translation>時間（分）</translation>
    </message>
    <message>
        <source>time(hour)</source>
        <translation>時間（時）</translation>
    </message>
</context>
<context>
    <name>CarInfoItem87_5</name>
    <message>
        <source>15s</source>
        <translation>15s</translation>
    </message>
    <message>
        <source>30s</source>
        <translation>30s</translation>
    </message>
    <message>
        <source>60s</source>
        <translation>60s</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>所有車門</translation>
    </message>
    <message>
        <source>Blind spot detection</source>
        <translation>盲點偵測</translation>
    </message>
    <message>
        <source>Bright Brown</source>
        <translation>亮棕色</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>攝氏度</translation>
    </message>
    <message>
        <source>Central door lock status</source>
        <translation>中控門鎖狀態</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Crimson</source>
        <translation>深紅色</translation>
    </message>
    <message>
        <source>Crystal Rhythm</source>
        <translation>水晶律動</translation>
    </message>
    <message>
        <source>Deerskin Brown</source>
        <translation>鹿皮棕</translation>
    </message>
    <message>
        <source>Disable</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>Disable auto folding mirrors</source>
        <translation>禁用後視鏡自動摺疊</translation>
    </message>
    <message>
        <source>Disable when reversing</source>
        <translation>倒車時禁用</translation>
    </message>
    <message>
        <source>Door self locking status</source>
        <translation>車門自鎖狀態</translation>
    </message>
    <message>
        <source>Driver&apos;s door only</source>
        <translation>僅駕駛員車門</translation>
    </message>
    <message>
        <source>Driving assist brake</source>
        <translation>駕駛輔助煞車</translation>
    </message>
    <message>
        <source>Electric trunkLid</source>
        <translation>電動行李廂蓋</translation>
    </message>
    <message>
        <source>Enable when reversing</source>
        <translation>倒車時啟用</translation>
    </message>
    <message>
        <source>Engine start stop function is deactivated</source>
        <translation>引擎啟停功能已停用</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>華氏度</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>遠</translation>
    </message>
    <message>
        <source>Fatigue detection system</source>
        <translation>疲勞檢測系統</translation>
    </message>
    <message>
        <source>Follow up turn headlights</source>
        <translation>隨動轉向頭燈</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法語</translation>
    </message>
    <message>
        <source>Fuel consumption unit setting</source>
        <translation>油耗單位設定</translation>
    </message>
    <message>
        <source>Jade green</source>
        <translation>翡翠綠</translation>
    </message>
    <message>
        <source>Jungle Dream</source>
        <translation>叢林之夢</translation>
    </message>
    <message>
        <source>KM/L-KM</source>
        <translation>KM/L-KM</translation>
    </message>
    <message>
        <source>L/100KM-KM</source>
        <translation>L/100KM-KM</translation>
    </message>
    <message>
        <source>MPG</source>
        <translation>MPG</translation>
    </message>
    <message>
        <source>Near</source>
        <translation>近</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開</translation>
    </message>
    <message>
        <source>P file</source>
        <translation>P檔</translation>
    </message>
    <message>
        <source>PGear or handbrake</source>
        <translation>P檔或手煞車</translation>
    </message>
    <message>
        <source>Page0</source>
        <translation>頁面0</translation>
    </message>
    <message>
        <source>Page1</source>
        <translation>頁面1</translation>
    </message>
    <message>
        <source>Page2</source>
        <translation>頁面2</translation>
    </message>
    <message>
        <source>Rear view mirror adaptive</source>
        <translation>後視鏡自適應</translation>
    </message>
    <message>
        <source>Reversing radar deactivated</source>
        <translation>倒車雷達已停用</translation>
    </message>
    <message>
        <source>Reversing state</source>
        <translation>倒車狀態</translation>
    </message>
    <message>
        <source>Sky Blue</source>
        <translation>天藍色</translation>
    </message>
    <message>
        <source>Sound settings</source>
        <translation>聲音設定</translation>
    </message>
    <message>
        <source>Speed limit reminder</source>
        <translation>限速提醒</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>Take me home lighting</source>
        <translation>伴我回家照明</translation>
    </message>
    <message>
        <source>The trunk opens automatically</source>
        <translation>行李廂自動開啟</translation>
    </message>
    <message>
        <source>Traction control system</source>
        <translation>牽引力控制系統</translation>
    </message>
    <message>
        <source>Traffic sign recognition</source>
        <translation>交通標誌識別</translation>
    </message>
    <message>
        <source>Trip computer currently displayed page</source>
        <translation>行車電腦目前顯示頁</translation>
    </message>
    <message>
        <source>Unlock the trunk only</source>
        <translation>僅解鎖行李廂</translation>
    </message>
    <message>
        <source>Welcome function</source>
        <translation>迎賓功能</translation>
    </message>
    <message>
        <source>Welcome lighting</source>
        <translation>迎賓燈</translation>
    </message>
    <message>
        <source>agate red</source>
        <translation>瑪瑙紅</translation>
    </message>
    <message>
        <source>classic sound</source>
        <translation>經典音效</translation>
    </message>
    <message>
        <source>day lighting</source>
        <translation>日間行車燈</translation>
    </message>
    <message>
        <source>door opening options</source>
        <translation>開門選項</translation>
    </message>
    <message>
        <source>driver assistance system</source>
        <translation>駕駛輔助系統</translation>
    </message>
    <message>
        <source>emergency braking</source>
        <translation>緊急煞車</translation>
    </message>
    <message>
        <source>enable</source>
        <translation>啟用</translation>
    </message>
    <message>
        <source>language</source>
        <translation>語言</translation>
    </message>
    <message>
        <source>light status</source>
        <translation>燈光狀態</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>已上鎖</translation>
    </message>
    <message>
        <source>mood lighting status</source>
        <translation>氛圍燈狀態</translation>
    </message>
    <message>
        <source>non-P file</source>
        <translation>非P檔</translation>
    </message>
    <message>
        <source>non-reversing</source>
        <translation>非倒車</translation>
    </message>
    <message>
        <source>rear wiper</source>
        <translation>後雨刷</translation>
    </message>
    <message>
        <source>reverse</source>
        <translation>倒車</translation>
    </message>
    <message>
        <source>sapphire blue</source>
        <translation>藍寶石藍</translation>
    </message>
    <message>
        <source>temperature unit</source>
        <translation>溫度單位</translation>
    </message>
    <message>
        <source>theme color</source>
        <translation>主題色</translation>
    </message>
    <message>
        <source>unlocked</source>
        <translation>已解鎖</translation>
    </message>
    <message>
        <source>urban rhythm</source>
        <translation>都市律動</translation>
    </message>
</context>
<context>
    <name>CarInfoItem87_6</name>
    <message>
        <source>speed 1 state</source>
        <translation>車速1狀態</translation>
    </message>
    <message>
        <source>speed 2 state</source>
        <translation>車速2狀態</translation>
    </message>
    <message>
        <source>speed 3 state</source>
        <translation>車速3狀態</translation>
    </message>
    <message>
        <source>speed 4 state</source>
        <translation>車速4狀態</translation>
    </message>
    <message>
        <source>speed 5 state</source>
        <translation>車速5狀態</translation>
    </message>
    <message>
        <source>speed 1</source>
        <translation>車速1</translation>
    </message>
    <message>
        <source>speed 2</source>
        <translation>車速2</translation>
    </message>
    <message>
        <source>speed 3</source>
        <translation>車速3</translation>
    </message>
    <message>
        <source>speed 4</source>
        <translation>車速4</translation>
    </message>
    <message>
        <source>speed 5</source>
        <translation>車速5</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>未選</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開</translation>
    </message>
    <message>
        <source>choose</source>
        <translation>已選</translation>
    </message>
    <message>
        <source>memory speed</source>
        <translation>記憶車速</translation>
    </message>
</context>
<context>
    <name>CarInfoItem87_7</name>
    <message>
        <source>Cruising speed 1</source>
        <translation>巡航車速1</translation>
    </message>
    <message>
        <source>Cruising speed 2</source>
        <translation>巡航車速2</translation>
    </message>
    <message>
        <source>Cruising speed 3</source>
        <translation>巡航車速3</translation>
    </message>
    <message>
        <source>Cruising speed 4</source>
        <translation>巡航車速4</translation>
    </message>
    <message>
        <source>Cruising speed 5</source>
        <translation>巡航車速5</translation>
    </message>
    <message>
        <source>Cruising speed 6</source>
        <translation>巡航車速6</translation>
    </message>
    <message>
        <source>Speed limit 1</source>
        <translation>限速1</translation>
    </message>
    <message>
        <source>Speed limit 2</source>
        <translation>限速2</translation>
    </message>
    <message>
        <source>Speed limit 3</source>
        <translation>限速3</translation>
    </message>
    <message>
        <source>Speed limit 4</source>
        <translation>限速4</translation>
    </message>
    <message>
        <source>Speed limit 5</source>
        <translation>限速5</translation>
    </message>
    <message>
        <source>Speed limit 6</source>
        <translation>限速6</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>cruise speed popup</source>
        <translation>巡航車速彈窗</translation>
    </message>
    <message>
        <source>pop up</source>
        <translation>彈出</translation>
    </message>
    <message>
        <source>speed limit popup</source>
        <translation>限速彈窗</translation>
    </message>
</context>
<context>
    <name>CarInfoItem87_8</name>
    <message>
        <source>Anti collision</source>
        <translation>防碰撞</translation>
    </message>
    <message>
        <source>Anti collision,front horn sounds</source>
        <translation>防碰撞，前喇叭鳴響</translation>
    </message>
    <message>
        <source>Decoding end parallel anti collision sound</source>
        <translation>解碼盒併線防碰撞提示音</translation>
    </message>
    <message>
        <source>Far and near lLight intelligent auxiliary system</source>
        <translation>遠近光智慧輔助系統</translation>
    </message>
    <message>
        <source>Left superLine,left front horn beeps</source>
        <translation>左側越線，左前喇叭鳴響</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Parallel auxiliary</source>
        <translation>併線輔助</translation>
    </message>
    <message>
        <source>Right super line,right front horn beeps</source>
        <translation>右側越線，右前喇叭鳴響</translation>
    </message>
    <message>
        <source>keyless entry system</source>
        <translation>無鑰匙進入系統</translation>
    </message>
</context>
<context>
    <name>CarInfoItem87_9</name>
    <message>
        <source>4WD</source>
        <translation>4WD</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>亮</translation>
    </message>
    <message>
        <source>Comfort</source>
        <translation>舒適</translation>
    </message>
    <message>
        <source>Economy</source>
        <translation>經濟</translation>
    </message>
    <message>
        <source>Electric</source>
        <translation>電動</translation>
    </message>
    <message>
        <source>Front wheel brake energy recovery</source>
        <translation>前輪煞車能量回收</translation>
    </message>
    <message>
        <source>Hybrid</source>
        <translation>混動</translation>
    </message>
    <message>
        <source>Mud</source>
        <translation>泥地</translation>
    </message>
    <message>
        <source>Rear brake energy recovery</source>
        <translation>後輪煞車能量回收</translation>
    </message>
    <message>
        <source>Sand</source>
        <translation>沙地</translation>
    </message>
    <message>
        <source>Snow</source>
        <translation>雪地</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>運動</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>The engine charges the battery</source>
        <translation>引擎給電池充電</translation>
    </message>
    <message>
        <source>battery driven front wheels</source>
        <translation>電池驅動前輪</translation>
    </message>
    <message>
        <source>battery driven rear wheel</source>
        <translation>電池驅動後輪</translation>
    </message>
    <message>
        <source>engine</source>
        <translation>引擎</translation>
    </message>
    <message>
        <source>engine driven front wheels</source>
        <translation>引擎驅動前輪</translation>
    </message>
    <message>
        <source>model</source>
        <translation>駕駛模式</translation>
    </message>
    <message>
        <source>scroll</source>
        <translation>滾動</translation>
    </message>
    <message>
        <source>still</source>
        <translation>靜止</translation>
    </message>
    <message>
        <source>tire rolling</source>
        <translation>輪胎滾動</translation>
    </message>
</context>
<context>
    <name>CarInfoItem96_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem96_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>車窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>車窗-左後</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>車窗-右後</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>車窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem96_3</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6級</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左後車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右後車窗開閉</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗開閉</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem97_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空調座椅加熱</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空調溫度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有車窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已開啟</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左後</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右後</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已關閉</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在關閉</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副駕駛</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>目前車窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>目前車窗狀態</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>駕駛位</translation>
    </message>
    <message>
        <source>Front left</source>
        <translation>左前</translation>
    </message>
    <message>
        <source>Front right</source>
        <translation>右前</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight tilt</source>
        <translation>天窗翹起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮陽簾</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支援此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>行李廂</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在開啟</translation>
    </message>
</context>
<context>
    <name>CarInfoItem97_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC狀態</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>煞車狀態</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>車窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>車窗-左後</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>車窗-右後</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>車窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模組電壓</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副駕駛安全帶</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>轉角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>車門資訊</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>駕駛員安全帶</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>引擎轉速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>檔位狀態</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手煞車狀態</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage-A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage-B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒檔</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示寬燈</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>輪速資訊</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刷</translation>
    </message>
    <message>
        <source>light</source>
        <translation>燈光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem97_3</name>
    <message>
        <source>All off</source>
        <translation>全部關閉</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>環境溫度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Don&apos;t scratch</source>
        <translation>不刮</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>機油溫度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>車架號資訊</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前霧燈</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前門鎖狀態</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前輪速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前門鎖狀態</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全開</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半開</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>遠光燈</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬時油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬時車速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脈衝數</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左後脈衝數</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左方向燈</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1級</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2級</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3級</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4級</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5級</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6級</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7級</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>鎖止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光燈</translation>
    </message>
    <message>
        <source>Mileage A</source>
        <translation>里程A</translation>
    </message>
    <message>
        <source>Mileage B</source>
        <translation>里程B</translation>
    </message>
    <message>
        <source>Motor speed information</source>
        <translation>馬達轉速資訊</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈輪胎脈衝數</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>關</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>開</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左後車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前車窗開閉</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右後車窗開閉</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>後霧燈</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左後門鎖狀態</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右後門鎖狀態</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脈衝數</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前輪速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右後脈衝數</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右方向燈</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>轉速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗開閉</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解鎖</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>電壓</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水溫資訊</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示寬指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刷速度檔位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均車速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>續航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>總里程</translation>
    </message>
</context>
<context>
    <name>CardoorDialog27</name>
    <message>
        <source>Seatbelt not fastened</source>
        <translation>安全帶未系</translation>
    </message>
    <message>
        <source>Auto Parking Abnormal</source>
        <translation>自動停車異常</translation>
    </message>
    <message>
        <source>Abnormal condensate</source>
        <translation>冷卻液異常</translation>
    </message>
</context>
<context>
    <name>ExView</name>
    <message>
        <source>tire pressure</source>
        <translation>胎壓</translation>
    </message>
</context>
<context>
    <name>ListDialog</name>
    <message>
        <source>Download</source>
        <translation>下載</translation>
    </message>
</context>
<context>
    <name>SampleReverseView</name>
    <message>
        <source>Camera connected</source>
        <translation>攝像頭已連線</translation>
    </message>
    <message>
        <source>No camera signal</source>
        <translation>無攝像頭訊號</translation>
    </message>
</context>
<context>
    <name>StatusBarModeWidget27</name>
    <message>
        <source>Air conditioner</source>
        <translation>空調</translation>
    </message>
</context>
<context>
    <name>TirePressure</name>
    <message>
        <source>When the pressure of all 4 tires are checked correctly and there is no problem, please click Reset</source>
        <translation>四個輪胎的胎壓均已檢查正常且無問題時，請點選重設</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
</context>
</TS>

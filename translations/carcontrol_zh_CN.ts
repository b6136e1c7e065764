<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>CarControlView</name>
    <message>
        <source>No model currently selected, please select a model in factory settings</source>
        <translation>当前未选择车型，请在工厂设置中选择车型</translation>
    </message>
    <message>
        <source>This model does not support the air conditioning function</source>
        <translation>此车型不支持空调功能</translation>
    </message>
</context>
<context>
    <name>CarDoorTipIcon</name>
    <message>
        <source>Doors and hood not closed</source>
        <translation>车门和引擎盖未关</translation>
    </message>
    <message>
        <source>Doors and trunk not closed</source>
        <translation>车门和后备箱未关</translation>
    </message>
    <message>
        <source>Door not closed</source>
        <translation>车门未关</translation>
    </message>
    <message>
        <source>The hood and trunk are not closed</source>
        <translation>引擎盖和后备箱未关</translation>
    </message>
    <message>
        <source>The hood is not closed</source>
        <translation>引擎盖未关</translation>
    </message>
    <message>
        <source>trunk not closed</source>
        <translation>后备箱未关</translation>
    </message>
</context>
<context>
    <name>CarExView102</name>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
</context>
<context>
    <name>CarExView103</name>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>Tire pressure monitoring</source>
        <translation>胎压监测</translation>
    </message>
    <message>
        <source>Amplifier Information</source>
        <translation>功放信息</translation>
    </message>
</context>
<context>
    <name>CarExView105</name>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>On-board computer information</source>
        <translation>行车电脑信息</translation>
    </message>
    <message>
        <source>Vehicle Setup Information 2</source>
        <translation>车辆设置信息2</translation>
    </message>
    <message>
        <source>Vehicle Setup Information 1</source>
        <translation>车辆设置信息1</translation>
    </message>
    <message>
        <source>Vehicle Setup Information</source>
        <translation>车辆设置信息</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎压信息</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
</context>
<context>
    <name>CarExView122</name>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>Vehicle Information 1</source>
        <translation>车辆信息1</translation>
    </message>
    <message>
        <source>Setting item information</source>
        <translation>设置项信息</translation>
    </message>
    <message>
        <source>Setting item display</source>
        <translation>设置项显示</translation>
    </message>
    <message>
        <source>Body Information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
</context>
<context>
    <name>CarExView123</name>
    <message>
        <source>Basic information</source>
        <translation>基本信息</translation>
    </message>
    <message>
        <source>Original car power release state</source>
        <translation>原车功放释放状态</translation>
    </message>
    <message>
        <source>Vehicle driving fuel consumption information</source>
        <translation>车辆行驶油耗信息</translation>
    </message>
</context>
<context>
    <name>CarExView124</name>
    <message>
        <source>Basic information</source>
        <translation>基本信息</translation>
    </message>
    <message>
        <source>Vehicle settings information</source>
        <translation>车辆设置信息</translation>
    </message>
    <message>
        <source>CD/DVD status</source>
        <translation>CD/DVD状态</translation>
    </message>
</context>
<context>
    <name>CarExView27</name>
    <message>
        <source>This model doesn&apos;t support this feature</source>
        <translation>此车型不支持此功能</translation>
    </message>
</context>
<context>
    <name>CarExView28</name>
    <message>
        <source>Parking assist status</source>
        <translation>泊车辅助状态</translation>
    </message>
    <message>
        <source>Amplifier status</source>
        <translation>功放状态</translation>
    </message>
    <message>
        <source>Body information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>Driving data</source>
        <translation>行车数据</translation>
    </message>
    <message>
        <source>Electronic Sisplay</source>
        <translation>电子显示</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎压信息</translation>
    </message>
    <message>
        <source>Car condition check</source>
        <translation>车况检查</translation>
    </message>
    <message>
        <source>Electric management status</source>
        <translation>电能管理状态</translation>
    </message>
</context>
<context>
    <name>CarExView29</name>
    <message>
        <source>Parking assist status</source>
        <translation>泊车辅助状态</translation>
    </message>
    <message>
        <source>Amplifier status</source>
        <translation>功放状态</translation>
    </message>
    <message>
        <source>Body information</source>
        <translation>车身信息</translation>
    </message>
</context>
<context>
    <name>CarExView30</name>
    <message>
        <source>Tire pressure information</source>
        <translation>胎压信息</translation>
    </message>
    <message>
        <source>Hybrid information</source>
        <translation>混动信息</translation>
    </message>
    <message>
        <source>Vehicle setting status</source>
        <translation>车辆设置状态</translation>
    </message>
    <message>
        <source>Amplifier information</source>
        <translation>功放信息</translation>
    </message>
    <message>
        <source>Body setting status</source>
        <translation>车身设置状态</translation>
    </message>
    <message>
        <source>Historical fuel consumption information</source>
        <translation>历史油耗信息</translation>
    </message>
    <message>
        <source>Mileage information</source>
        <translation>里程信息</translation>
    </message>
    <message>
        <source>Fuel consumption in the past 15 minutes</source>
        <translation>过去15分钟油耗</translation>
    </message>
    <message>
        <source>Multimedia information</source>
        <translation>多媒体信息</translation>
    </message>
</context>
<context>
    <name>CarExView31</name>
    <message>
        <source>Parking assist status</source>
        <translation>泊车辅助状态</translation>
    </message>
    <message>
        <source>Fuel consumption and mileage information</source>
        <translation>油耗与里程信息</translation>
    </message>
    <message>
        <source>Power flow information</source>
        <translation>动力流信息</translation>
    </message>
    <message>
        <source>Original car radio data</source>
        <translation>原车收音数据</translation>
    </message>
    <message>
        <source>Backlight adjustment information</source>
        <translation>背光调节信息</translation>
    </message>
    <message>
        <source>Vehicle setting status</source>
        <translation>车辆设置状态</translation>
    </message>
</context>
<context>
    <name>CarExView32</name>
    <message>
        <source>Multimedia information</source>
        <translation>多媒体信息</translation>
    </message>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>Vehicle setting information</source>
        <translation>车辆设置信息</translation>
    </message>
    <message>
        <source>Amplifier information</source>
        <translation>功放信息</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
</context>
<context>
    <name>CarExView33</name>
    <message>
        <source>Compass information</source>
        <translation>指南针信息</translation>
    </message>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>Original car settings</source>
        <translation>原车设置</translation>
    </message>
    <message>
        <source>New energy display information</source>
        <translation>新能源显示信息</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>New energy setting information</source>
        <translation>新能源设置信息</translation>
    </message>
    <message>
        <source>Intelligent perception system information</source>
        <translation>智能感知系统信息</translation>
    </message>
    <message>
        <source>Vehicle control information</source>
        <translation>车辆控制信息</translation>
    </message>
</context>
<context>
    <name>CarExView34</name>
    <message>
        <source>Parking assist status</source>
        <translation>泊车辅助状态</translation>
    </message>
    <message>
        <source>Amplifier status</source>
        <translation>功放状态</translation>
    </message>
    <message>
        <source>Body information</source>
        <translation>车身信息</translation>
    </message>
</context>
<context>
    <name>CarExView35</name>
    <message>
        <source>Vehicle setting information</source>
        <translation>车辆设置信息</translation>
    </message>
    <message>
        <source>Mileage information</source>
        <translation>里程信息</translation>
    </message>
</context>
<context>
    <name>CarExView36</name>
    <message>
        <source>Parking assist status</source>
        <translation>泊车辅助状态</translation>
    </message>
    <message>
        <source>Fuel consumption and mileage information</source>
        <translation>油耗与里程信息</translation>
    </message>
</context>
<context>
    <name>CarExView37</name>
    <message>
        <source>Automatic parking information</source>
        <translation>自动泊车信息</translation>
    </message>
    <message>
        <source>Hybrid information</source>
        <translation>混动信息</translation>
    </message>
    <message>
        <source>Body air conditioning settings</source>
        <translation>车身空调设置</translation>
    </message>
    <message>
        <source>Body control setting information 2</source>
        <translation>车身控制设置信息2</translation>
    </message>
    <message>
        <source>Body control setting information</source>
        <translation>车身控制设置信息</translation>
    </message>
    <message>
        <source>Body air conditioning control information</source>
        <translation>车身空调控制信息</translation>
    </message>
    <message>
        <source>Simulate the key information of the original car panel</source>
        <translation>模拟原车面板按键信息</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎压信息</translation>
    </message>
    <message>
        <source>OnStar Information</source>
        <translation>安吉星信息</translation>
    </message>
</context>
<context>
    <name>CarExView40</name>
    <message>
        <source>Body information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>Amplifier information</source>
        <translation>功放信息</translation>
    </message>
</context>
<context>
    <name>CarExView42</name>
    <message>
        <source>Vehicle settings</source>
        <translation>车辆设置</translation>
    </message>
</context>
<context>
    <name>CarExView43</name>
    <message>
        <source>Body information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>Panorama and Auxiliary</source>
        <translation>全景与辅助</translation>
    </message>
    <message>
        <source>Body setting status</source>
        <translation>车身设置状态</translation>
    </message>
</context>
<context>
    <name>CarExView45</name>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>Vehicle Information 1</source>
        <translation>车辆信息1</translation>
    </message>
    <message>
        <source>Setting item information</source>
        <translation>设置项信息</translation>
    </message>
    <message>
        <source>Setting item display</source>
        <translation>设置项显示</translation>
    </message>
</context>
<context>
    <name>CarExView48</name>
    <message>
        <source>Parking assist status</source>
        <translation>泊车辅助状态</translation>
    </message>
    <message>
        <source>Multimedia information</source>
        <translation>多媒体信息</translation>
    </message>
    <message>
        <source>SYNC information</source>
        <translation>SYNC信息</translation>
    </message>
    <message>
        <source>Seat massage</source>
        <translation>座椅按摩</translation>
    </message>
    <message>
        <source>Power amplifier status</source>
        <translation>功放状态</translation>
    </message>
    <message>
        <source>Smart Xinfeng</source>
        <translation>智能新风</translation>
    </message>
    <message>
        <source>Set item status</source>
        <translation>设置项状态</translation>
    </message>
    <message>
        <source>Basic Information</source>
        <translation>基本信息</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎压信息</translation>
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
        <translation>泊车辅助状态</translation>
    </message>
    <message>
        <source>Setting item status</source>
        <translation>设置项状态</translation>
    </message>
    <message>
        <source>Setting item setting 1</source>
        <translation>设置项设置1</translation>
    </message>
    <message>
        <source>Setting item setting 2</source>
        <translation>设置项设置2</translation>
    </message>
    <message>
        <source>Panorama information</source>
        <translation>全景信息</translation>
    </message>
    <message>
        <source>PM2.5 data</source>
        <translation>PM2.5数据</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎压信息</translation>
    </message>
</context>
<context>
    <name>CarExView56</name>
    <message>
        <source>Body information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
</context>
<context>
    <name>CarExView60</name>
    <message>
        <source>Body information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>Original car setting information</source>
        <translation>原车设置信息</translation>
    </message>
    <message>
        <source>Original vehicle vehicle information 2</source>
        <translation>原车车辆信息2</translation>
    </message>
    <message>
        <source>Amplifier information</source>
        <translation>功放信息</translation>
    </message>
    <message>
        <source>CD status information</source>
        <translation>CD状态信息</translation>
    </message>
    <message>
        <source>Panorama information</source>
        <translation>全景信息</translation>
    </message>
</context>
<context>
    <name>CarExView64</name>
    <message>
        <source>Energy management setup information</source>
        <translation>能量管理设置信息</translation>
    </message>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>vehicle setup information</source>
        <translation>车辆设置信息</translation>
    </message>
    <message>
        <source>Tire pressure warning message</source>
        <translation>胎压警告信息</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>automatic parking status</source>
        <translation>自动泊车状态</translation>
    </message>
    <message>
        <source>Panoramic information</source>
        <translation>全景信息</translation>
    </message>
</context>
<context>
    <name>CarExView65</name>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>Security Settings Status Information</source>
        <translation>安全设置状态信息</translation>
    </message>
    <message>
        <source>Original car radio status information</source>
        <translation>原车收音状态信息</translation>
    </message>
    <message>
        <source>Original car amplifier settings</source>
        <translation>原车功放设置</translation>
    </message>
    <message>
        <source>CD/DVD media information</source>
        <translation>CD/DVD媒体信息</translation>
    </message>
    <message>
        <source>i-stop information</source>
        <translation>i-stop信息</translation>
    </message>
    <message>
        <source>fuel information</source>
        <translation>燃油信息</translation>
    </message>
    <message>
        <source>set item status</source>
        <translation>设置项状态</translation>
    </message>
    <message>
        <source>driving display</source>
        <translation>行车显示</translation>
    </message>
    <message>
        <source>Maintenance information</source>
        <translation>保养信息</translation>
    </message>
    <message>
        <source>Basic Information</source>
        <translation>基本信息</translation>
    </message>
    <message>
        <source>Tire pressure display</source>
        <translation>胎压显示</translation>
    </message>
</context>
<context>
    <name>CarExView66</name>
    <message>
        <source>Basic Information</source>
        <translation>基本信息</translation>
    </message>
</context>
<context>
    <name>CarExView67</name>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>Amplifier Information</source>
        <translation>功放信息</translation>
    </message>
    <message>
        <source>New energy setting information 5</source>
        <translation>新能源设置信息5</translation>
    </message>
    <message>
        <source>New energy setting information 4</source>
        <translation>新能源设置信息4</translation>
    </message>
    <message>
        <source>New energy setting information 3</source>
        <translation>新能源设置信息3</translation>
    </message>
    <message>
        <source>New energy setting information 2</source>
        <translation>新能源设置信息2</translation>
    </message>
    <message>
        <source>New energy setting information 1</source>
        <translation>新能源设置信息1</translation>
    </message>
    <message>
        <source>vehicle setup command</source>
        <translation>车辆设置命令</translation>
    </message>
    <message>
        <source>Panoramic image status</source>
        <translation>全景影像状态</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎压信息</translation>
    </message>
    <message>
        <source>Basic body information</source>
        <translation>车身基本信息</translation>
    </message>
</context>
<context>
    <name>CarExView68</name>
    <message>
        <source>vehicle settings</source>
        <translation>车辆设置</translation>
    </message>
    <message>
        <source>Setting item status information</source>
        <translation>设置项状态信息</translation>
    </message>
    <message>
        <source>Set item status 2 information</source>
        <translation>设置项状态2信息</translation>
    </message>
</context>
<context>
    <name>CarExView69</name>
    <message>
        <source>vehicle settings</source>
        <translation>车辆设置</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎压信息</translation>
    </message>
    <message>
        <source>Original car setting item information feedback</source>
        <translation>原车设置项信息反馈</translation>
    </message>
    <message>
        <source>360 panoramic information feedback</source>
        <translation>360全景信息反馈</translation>
    </message>
    <message>
        <source>energy information</source>
        <translation>能量信息</translation>
    </message>
    <message>
        <source>Original car setting item information 2</source>
        <translation>原车设置项信息2</translation>
    </message>
    <message>
        <source>Dashcam settings</source>
        <translation>行车记录仪设置</translation>
    </message>
    <message>
        <source>voice control</source>
        <translation>语音控制</translation>
    </message>
</context>
<context>
    <name>CarExView70</name>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>set item status</source>
        <translation>设置项状态</translation>
    </message>
    <message>
        <source>Tire pressure display</source>
        <translation>胎压显示</translation>
    </message>
</context>
<context>
    <name>CarExView71</name>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
</context>
<context>
    <name>CarExView72</name>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>List of potentials</source>
        <translation>潜力列表</translation>
    </message>
    <message>
        <source>Oil Potential List</source>
        <translation>燃油潜力列表</translation>
    </message>
    <message>
        <source>energy management</source>
        <translation>能量管理</translation>
    </message>
    <message>
        <source>driving mode</source>
        <translation>驾驶模式</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎压信息</translation>
    </message>
    <message>
        <source>Panoramic information</source>
        <translation>全景信息</translation>
    </message>
    <message>
        <source>Warning message</source>
        <translation>警告信息</translation>
    </message>
    <message>
        <source>Vehicle Setup Information 3</source>
        <translation>车辆设置信息3</translation>
    </message>
    <message>
        <source>Vehicle Setup Information 2</source>
        <translation>车辆设置信息2</translation>
    </message>
    <message>
        <source>Vehicle Setup Information</source>
        <translation>车辆设置信息</translation>
    </message>
    <message>
        <source>Vehicle Setup Information 4</source>
        <translation>车辆设置信息4</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
</context>
<context>
    <name>CarExView74</name>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>Original car information</source>
        <translation>原车信息</translation>
    </message>
    <message>
        <source>The status of the original car setting item is returned</source>
        <translation>原车设置项状态反馈</translation>
    </message>
    <message>
        <source>original car fault information</source>
        <translation>原车故障信息</translation>
    </message>
    <message>
        <source>Car health examination</source>
        <translation>车辆健康检查</translation>
    </message>
</context>
<context>
    <name>CarExView78</name>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>vehicle settings</source>
        <translation>车辆设置</translation>
    </message>
</context>
<context>
    <name>CarExView79</name>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>Original car setup information</source>
        <translation>原车设置信息</translation>
    </message>
    <message>
        <source>energy information</source>
        <translation>能量信息</translation>
    </message>
    <message>
        <source>energy efficient driving</source>
        <translation>节能驾驶</translation>
    </message>
</context>
<context>
    <name>CarExView80</name>
    <message>
        <source>AVM set feedback status</source>
        <translation>AVM设置反馈状态</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
</context>
<context>
    <name>CarExView81</name>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
</context>
<context>
    <name>CarExView82</name>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
</context>
<context>
    <name>CarExView84</name>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
</context>
<context>
    <name>CarExView86</name>
    <message>
        <source>Amplifier Information</source>
        <translation>功放信息</translation>
    </message>
    <message>
        <source>Trip computer information</source>
        <translation>行车电脑信息</translation>
    </message>
</context>
<context>
    <name>CarExView87</name>
    <message>
        <source>Amplifier Information</source>
        <translation>功放信息</translation>
    </message>
    <message>
        <source>Trip computer information</source>
        <translation>行车电脑信息</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>Air conditioner preset state</source>
        <translation>空调预设状态</translation>
    </message>
    <message>
        <source>car status</source>
        <translation>车辆状态</translation>
    </message>
    <message>
        <source>Memory speed value</source>
        <translation>记忆车速值</translation>
    </message>
    <message>
        <source>Cruising speed, speed limit</source>
        <translation>巡航车速、限速</translation>
    </message>
    <message>
        <source>set item status 2</source>
        <translation>设置项状态2</translation>
    </message>
    <message>
        <source>Hybrid information-energy flow</source>
        <translation>混动信息-能量流</translation>
    </message>
    <message>
        <source>Hybrid information-statistics</source>
        <translation>混动信息-统计</translation>
    </message>
    <message>
        <source>Hybrid information-charging and battery storage</source>
        <translation>混动信息-充电与电池储能</translation>
    </message>
</context>
<context>
    <name>CarExView88</name>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>Rear seat air conditioner information</source>
        <translation>后排空调信息</translation>
    </message>
    <message>
        <source>Vehicle Control Information 1</source>
        <translation>车辆控制信息1</translation>
    </message>
    <message>
        <source>CD status information</source>
        <translation>CD状态信息</translation>
    </message>
    <message>
        <source>Vehicle Control Information 3</source>
        <translation>车辆控制信息3</translation>
    </message>
    <message>
        <source>Amplifier status</source>
        <translation>功放状态</translation>
    </message>
    <message>
        <source>performance control system</source>
        <translation>性能控制系统</translation>
    </message>
    <message>
        <source>Hybrid information</source>
        <translation>混动信息</translation>
    </message>
</context>
<context>
    <name>CarExView93</name>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
</context>
<context>
    <name>CarExView94</name>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
</context>
<context>
    <name>CarExView96</name>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>Amplifier Information</source>
        <translation>功放信息</translation>
    </message>
    <message>
        <source>fuel consumption information</source>
        <translation>油耗信息</translation>
    </message>
    <message>
        <source>Setting item information</source>
        <translation>设置项信息</translation>
    </message>
</context>
<context>
    <name>CarExView97</name>
    <message>
        <source>Voice control feedback</source>
        <translation>语音控制反馈</translation>
    </message>
    <message>
        <source>Function recognition</source>
        <translation>功能识别</translation>
    </message>
    <message>
        <source>Vehicle Information</source>
        <translation>车辆信息</translation>
    </message>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>Tire pressure information</source>
        <translation>胎压信息</translation>
    </message>
    <message>
        <source>Fuel consumption and mileage information</source>
        <translation>油耗与里程信息</translation>
    </message>
    <message>
        <source>set item status</source>
        <translation>设置项状态</translation>
    </message>
</context>
<context>
    <name>CarExView98</name>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>Setting item information</source>
        <translation>设置项信息</translation>
    </message>
    <message>
        <source>Trip information</source>
        <translation>行程信息</translation>
    </message>
</context>
<context>
    <name>CarExView99</name>
    <message>
        <source>body information</source>
        <translation>车身信息</translation>
    </message>
    <message>
        <source>Panorama state</source>
        <translation>全景状态</translation>
    </message>
</context>
<context>
    <name>CarInfoItem102_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem102_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>车窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>车窗-左后</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>车窗-右后</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>车窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem102_3</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6级</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左后车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右后车窗开闭</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗开闭</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem105_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem105_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>车窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>车窗-左后</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>车窗-右后</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>车窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem105_3</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6级</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左后车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右后车窗开闭</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗开闭</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem122_6</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem122_7</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>车窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>车窗-左后</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>车窗-右后</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>车窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem122_8</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6级</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左后车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右后车窗开闭</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗开闭</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
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
        <translation>平均车速</translation>
    </message>
    <message>
        <source>CD/DVD</source>
        <translation>CD/DVD</translation>
    </message>
    <message>
        <source>Current audio selection status of decoding box</source>
        <translation>解码盒当前音源选择状态</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Light info</source>
        <translation>灯光信息</translation>
    </message>
    <message>
        <source>Non P gear</source>
        <translation>非P挡</translation>
    </message>
    <message>
        <source>Non reversing</source>
        <translation>非倒车</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>P gear</source>
        <translation>P挡</translation>
    </message>
    <message>
        <source>P-gear or handbrake status</source>
        <translation>P挡或手刹状态</translation>
    </message>
    <message>
        <source>Park assist system status</source>
        <translation>泊车辅助系统状态</translation>
    </message>
    <message>
        <source>Reversing</source>
        <translation>倒车中</translation>
    </message>
    <message>
        <source>Reversing state</source>
        <translation>倒车状态</translation>
    </message>
    <message>
        <source>Version information</source>
        <translation>版本信息</translation>
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
        <translation>自适应前照灯系统</translation>
    </message>
    <message>
        <source>Automatic headlights on</source>
        <translation>大灯自动开启</translation>
    </message>
    <message>
        <source>Automatic locking mode</source>
        <translation>自动落锁模式</translation>
    </message>
    <message>
        <source>Automatic relock time</source>
        <translation>自动重新落锁时间</translation>
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
        <translation>下车落锁</translation>
    </message>
    <message>
        <source>Headlight off timer</source>
        <translation>大灯关闭时间</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Inductive wiper</source>
        <translation>感应雨刮</translation>
    </message>
    <message>
        <source>Keyless lock sound volume</source>
        <translation>无钥匙上锁提示音音量</translation>
    </message>
    <message>
        <source>Lamp reminder</source>
        <translation>车灯提醒</translation>
    </message>
    <message>
        <source>Lock:Unlock while,driving:flameout</source>
        <translation>上锁：行车时；解锁：熄火时</translation>
    </message>
    <message>
        <source>Lock:When driving</source>
        <translation>上锁：行车时</translation>
    </message>
    <message>
        <source>Lock:exiting park</source>
        <translation>上锁：离开P挡时</translation>
    </message>
    <message>
        <source>Lock:exiting park,unlock:enter park</source>
        <translation>上锁：离开P挡时；解锁：挂入P挡时</translation>
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
        <translation>关</translation>
    </message>
    <message>
        <source>Once: All the doors</source>
        <translation>一次：所有车门</translation>
    </message>
    <message>
        <source>Once: the driver&apos;s side door, twice: all the doors</source>
        <translation>一次：驾驶员侧车门；两次：所有车门</translation>
    </message>
    <message>
        <source>Triple flashing turn signal</source>
        <translation>转向灯闪烁三次</translation>
    </message>
    <message>
        <source>Turn signal volume</source>
        <translation>转向灯音量</translation>
    </message>
    <message>
        <source>Unlock mode</source>
        <translation>解锁模式</translation>
    </message>
    <message>
        <source>When the door is closed-the interior lights automatically turn off</source>
        <translation>车门关闭时室内灯自动熄灭</translation>
    </message>
    <message>
        <source>When the door is opened-the interior lights automatically turn off</source>
        <translation>车门打开时室内灯自动熄灭</translation>
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
        <translation>未选择</translation>
    </message>
    <message>
        <source>select</source>
        <translation>选择</translation>
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
        <translation>暂停</translation>
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
        <translation>快进</translation>
    </message>
    <message>
        <source>Rewind quickly</source>
        <translation>快退</translation>
    </message>
    <message>
        <source>RPT</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>RDM</source>
        <translation>随机</translation>
    </message>
    <message>
        <source>SCAM</source>
        <translation>扫描</translation>
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
        <translation>确定</translation>
    </message>
    <message>
        <source>Discing</source>
        <translation>出碟</translation>
    </message>
    <message>
        <source>Captions OFF</source>
        <translation>字幕关</translation>
    </message>
    <message>
        <source>Aspect ratio</source>
        <translation>画面比例</translation>
    </message>
    <message>
        <source>List</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>16:9 widescreen</source>
        <translation>16:9宽屏</translation>
    </message>
    <message>
        <source>4:3 Frames</source>
        <translation>4:3画框</translation>
    </message>
    <message>
        <source>4:3 Panorama</source>
        <translation>4:3全景</translation>
    </message>
    <message>
        <source>RPT ON</source>
        <translation>重复开</translation>
    </message>
    <message>
        <source>RPT OFF</source>
        <translation>重复关</translation>
    </message>
    <message>
        <source>RDM ON</source>
        <translation>随机开</translation>
    </message>
    <message>
        <source>RDM OFF</source>
        <translation>随机关</translation>
    </message>
    <message>
        <source>Subtitle on</source>
        <translation>字幕开</translation>
    </message>
    <message>
        <source>Subtitle off</source>
        <translation>字幕关</translation>
    </message>
</context>
<context>
    <name>CarInfoItem28_1</name>
    <message>
        <source>Ambient temperature information</source>
        <translation>环境温度信息</translation>
    </message>
    <message>
        <source>Conv.Consumers prompt message 1</source>
        <translation>舒适用电器提示信息1</translation>
    </message>
    <message>
        <source>Conv.Consumers prompt message 2</source>
        <translation>舒适用电器提示信息2</translation>
    </message>
    <message>
        <source>Conv.Consumers prompt message 3</source>
        <translation>舒适用电器提示信息3</translation>
    </message>
    <message>
        <source>Front radar working status</source>
        <translation>前雷达工作状态</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Key brightness value</source>
        <translation>按键亮度值</translation>
    </message>
    <message>
        <source>PM 2.5 Value in tthe ccar</source>
        <translation>车内PM2.5值</translation>
    </message>
    <message>
        <source>Park assist system status</source>
        <translation>泊车辅助系统状态</translation>
    </message>
    <message>
        <source>Radar sound state</source>
        <translation>雷达声音状态</translation>
    </message>
    <message>
        <source>Rear radar working status</source>
        <translation>后雷达工作状态</translation>
    </message>
    <message>
        <source>Screen brightness value</source>
        <translation>屏幕亮度值</translation>
    </message>
    <message>
        <source>Start-stop system</source>
        <translation>启停系统</translation>
    </message>
    <message>
        <source>Vehicle reminder 1</source>
        <translation>车辆提醒1</translation>
    </message>
    <message>
        <source>Vehicle reminder 2</source>
        <translation>车辆提醒2</translation>
    </message>
    <message>
        <source>Vehicle reminder 3</source>
        <translation>车辆提醒3</translation>
    </message>
    <message>
        <source>Vehicle reminder 4</source>
        <translation>车辆提醒4</translation>
    </message>
    <message>
        <source>Vehicle reminder 5</source>
        <translation>车辆提醒5</translation>
    </message>
    <message>
        <source>Vehicle reminder 6</source>
        <translation>车辆提醒6</translation>
    </message>
    <message>
        <source>Vocalize</source>
        <translation>发声</translation>
    </message>
    <message>
        <source>activated</source>
        <translation>已激活</translation>
    </message>
    <message>
        <source>close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>dark red</source>
        <translation>暗红色</translation>
    </message>
    <message>
        <source>deactivated</source>
        <translation>未激活</translation>
    </message>
    <message>
        <source>open</source>
        <translation>打开</translation>
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
        <translation>红色</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>white</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>黄色</translation>
    </message>
</context>
<context>
    <name>CarInfoItem28_2</name>
    <message>
        <source>Front And Back Balance</source>
        <translation>前后平衡</translation>
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
        <translation>速度音量调节</translation>
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
        <translation>已激活</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>所有车门</translation>
    </message>
    <message>
        <source>All regions</source>
        <translation>所有区域</translation>
    </message>
    <message>
        <source>All windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Ambient lighting-ambient lighting</source>
        <translation>氛围灯-氛围灯</translation>
    </message>
    <message>
        <source>Ambient lighting-car light color</source>
        <translation>氛围灯-灯光颜色</translation>
    </message>
    <message>
        <source>Ambient lighting-front ambient lighting</source>
        <translation>氛围灯-前部氛围灯</translation>
    </message>
    <message>
        <source>Ambient lighting-roof ambient lighting</source>
        <translation>氛围灯-车顶氛围灯</translation>
    </message>
    <message>
        <source>America</source>
        <translation>英语（美国）</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>音响</translation>
    </message>
    <message>
        <source>Austria</source>
        <translation>德语（奥地利）</translation>
    </message>
    <message>
        <source>Battery charge mode</source>
        <translation>电池充电模式</translation>
    </message>
    <message>
        <source>Battery maintenance</source>
        <translation>电池维护</translation>
    </message>
    <message>
        <source>Big</source>
        <translation>大</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Body MODE button</source>
        <translation>车身模式按键</translation>
    </message>
    <message>
        <source>Body MODE display</source>
        <translation>车身模式显示</translation>
    </message>
    <message>
        <source>Bosnia and Herzegovina</source>
        <translation>波斯尼亚语</translation>
    </message>
    <message>
        <source>Brazil</source>
        <translation>葡萄牙语（巴西）</translation>
    </message>
    <message>
        <source>Britain</source>
        <translation>英语（英国）</translation>
    </message>
    <message>
        <source>Bulgaria</source>
        <translation>保加利亚语</translation>
    </message>
    <message>
        <source>China</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Comfort</source>
        <translation>舒适</translation>
    </message>
    <message>
        <source>Comfortable</source>
        <translation>舒适</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>捷克语</translation>
    </message>
    <message>
        <source>Deactivate</source>
        <translation>停用</translation>
    </message>
    <message>
        <source>Denmark</source>
        <translation>丹麦语</translation>
    </message>
    <message>
        <source>Destination information</source>
        <translation>目的地信息</translation>
    </message>
    <message>
        <source>Distance monitoring</source>
        <translation>车距监控</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>驾驶员</translation>
    </message>
    <message>
        <source>Driver 2</source>
        <translation>驾驶员2</translation>
    </message>
    <message>
        <source>Driver 3</source>
        <translation>驾驶员3</translation>
    </message>
    <message>
        <source>Driver assistance 2-ACC travel program</source>
        <translation>驾驶辅助2-ACC行驶程序</translation>
    </message>
    <message>
        <source>Driver assistance 2-ACC vehicle distance</source>
        <translation>驾驶辅助2-ACC车距</translation>
    </message>
    <message>
        <source>Driver assistance 2-blind spot monitoring</source>
        <translation>驾驶辅助2-盲区监测</translation>
    </message>
    <message>
        <source>Driver assistance 2-brightness ofLane change assist system</source>
        <translation>驾驶辅助2-变道辅助亮度</translation>
    </message>
    <message>
        <source>Driver assistance 2-display distance alarm</source>
        <translation>驾驶辅助2-显示车距报警</translation>
    </message>
    <message>
        <source>Driver assistance 2-early warning</source>
        <translation>驾驶辅助2-预警</translation>
    </message>
    <message>
        <source>Driver assistance 2-front assist system activated</source>
        <translation>驾驶辅助2-前部辅助已激活</translation>
    </message>
    <message>
        <source>Driver assistance 2-steep slope descent system</source>
        <translation>驾驶辅助2-陡坡缓降</translation>
    </message>
    <message>
        <source>Driver assistance 2-vehicle distance last selected</source>
        <translation>驾驶辅助2-上次所选车距</translation>
    </message>
    <message>
        <source>Driver assistance 2-warning reminder</source>
        <translation>驾驶辅助2-警告提醒</translation>
    </message>
    <message>
        <source>Drivers seat</source>
        <translation>驾驶座</translation>
    </message>
    <message>
        <source>Driving assistance system-active lane guide is available</source>
        <translation>驾驶辅助-主动车道引导可用</translation>
    </message>
    <message>
        <source>Driving assistance system-adaptive lane guide</source>
        <translation>驾驶辅助-自适应车道引导</translation>
    </message>
    <message>
        <source>Driving assistance system-fatigue driving</source>
        <translation>驾驶辅助-疲劳驾驶</translation>
    </message>
    <message>
        <source>Driving assistance system-preventive occupant protection system</source>
        <translation>驾驶辅助-预防性乘员保护</translation>
    </message>
    <message>
        <source>Driving mode</source>
        <translation>驾驶模式</translation>
    </message>
    <message>
        <source>Driving time</source>
        <translation>驾驶时间</translation>
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
        <translation>ESC运动</translation>
    </message>
    <message>
        <source>ESC system</source>
        <translation>ESC系统</translation>
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
        <translation>经济</translation>
    </message>
    <message>
        <source>Electric-battery charging offline</source>
        <translation>电动-电池离线充电</translation>
    </message>
    <message>
        <source>Electric-in car temperature</source>
        <translation>电动-车内温度</translation>
    </message>
    <message>
        <source>Electric-maximum charging current</source>
        <translation>电动-最大充电电流</translation>
    </message>
    <message>
        <source>Electric-use battery powered air onditioning</source>
        <translation>电动-电池供电空调</translation>
    </message>
    <message>
        <source>Estonia</source>
        <translation>爱沙尼亚语</translation>
    </message>
    <message>
        <source>Extremely small</source>
        <translation>极小</translation>
    </message>
    <message>
        <source>Finland</source>
        <translation>芬兰语</translation>
    </message>
    <message>
        <source>Forward looking</source>
        <translation>前视</translation>
    </message>
    <message>
        <source>France</source>
        <translation>法语</translation>
    </message>
    <message>
        <source>Fully loaded</source>
        <translation>满载</translation>
    </message>
    <message>
        <source>GTE</source>
        <translation>GTE</translation>
    </message>
    <message>
        <source>Germany</source>
        <translation>德语</translation>
    </message>
    <message>
        <source>Greece</source>
        <translation>希腊语</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Hungary</source>
        <translation>匈牙利语</translation>
    </message>
    <message>
        <source>Hybrid</source>
        <translation>混动</translation>
    </message>
    <message>
        <source>Individual climate</source>
        <translation>个性化空调</translation>
    </message>
    <message>
        <source>Individual engine</source>
        <translation>个性化发动机</translation>
    </message>
    <message>
        <source>Individual frontLight</source>
        <translation>个性化前照灯</translation>
    </message>
    <message>
        <source>Individual steering</source>
        <translation>个性化转向</translation>
    </message>
    <message>
        <source>Instrument displayon theLeft</source>
        <translation>仪表左侧显示</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation>意大利语</translation>
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
        <translation>靠右行驶</translation>
    </message>
    <message>
        <source>Keep left</source>
        <translation>靠左行驶</translation>
    </message>
    <message>
        <source>Korea</source>
        <translation>韩语</translation>
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
        <translation>语言</translation>
    </message>
    <message>
        <source>Late</source>
        <translation>晚</translation>
    </message>
    <message>
        <source>Lateral traffic</source>
        <translation>横向交通</translation>
    </message>
    <message>
        <source>Left view</source>
        <translation>左视</translation>
    </message>
    <message>
        <source>Left view mode</source>
        <translation>左视模式</translation>
    </message>
    <message>
        <source>Light Colour</source>
        <translation>灯光颜色</translation>
    </message>
    <message>
        <source>Light-Instrument/switch lighting</source>
        <translation>灯光-仪表/开关照明</translation>
    </message>
    <message>
        <source>Light-automatic driving lights</source>
        <translation>灯光-自动行车灯</translation>
    </message>
    <message>
        <source>Light-away from home mode</source>
        <translation>灯光-离家模式</translation>
    </message>
    <message>
        <source>Light-background lighting</source>
        <translation>灯光-背景照明</translation>
    </message>
    <message>
        <source>Light-daytime running lights</source>
        <translation>灯光-日间行车灯</translation>
    </message>
    <message>
        <source>Light-door ambient lighting</source>
        <translation>灯光-车门氛围灯</translation>
    </message>
    <message>
        <source>Light-dynamic headlight follower</source>
        <translation>灯光-动态随动大灯</translation>
    </message>
    <message>
        <source>Light-headlight distance</source>
        <translation>灯光-大灯照明距离</translation>
    </message>
    <message>
        <source>Light-home mode</source>
        <translation>灯光-回家模式</translation>
    </message>
    <message>
        <source>Light-lane change flasher</source>
        <translation>灯光-变道转向灯</translation>
    </message>
    <message>
        <source>Light-space pace adjusting lights</source>
        <translation>灯光-空间照明调节</translation>
    </message>
    <message>
        <source>Light-travel mode</source>
        <translation>灯光-旅行模式</translation>
    </message>
    <message>
        <source>Light-turn on time</source>
        <translation>灯光-开启时间</translation>
    </message>
    <message>
        <source>Light_dynamic lighting assist</source>
        <translation>灯光-动态照明辅助</translation>
    </message>
    <message>
        <source>Lithuania</source>
        <translation>立陶宛语</translation>
    </message>
    <message>
        <source>MFD-Comfortable Appliances</source>
        <translation>MFD-舒适用电器</translation>
    </message>
    <message>
        <source>MFD-average fuel consumption</source>
        <translation>MFD-平均油耗</translation>
    </message>
    <message>
        <source>MFD-average speed</source>
        <translation>MFD-平均车速</translation>
    </message>
    <message>
        <source>MFD-current fuel consumption</source>
        <translation>MFD-当前油耗</translation>
    </message>
    <message>
        <source>MFD-digital speed display</source>
        <translation>MFD-数字车速显示</translation>
    </message>
    <message>
        <source>MFD-driven distance</source>
        <translation>MFD-行驶里程</translation>
    </message>
    <message>
        <source>MFD-driving time</source>
        <translation>MFD-行驶时间</translation>
    </message>
    <message>
        <source>MFD-economic operation tips</source>
        <translation>MFD-经济驾驶提示</translation>
    </message>
    <message>
        <source>MFD-oil temperature</source>
        <translation>MFD-机油温度</translation>
    </message>
    <message>
        <source>MFD-speed aalarm</source>
        <translation>MFD-超速报警</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Meter mode</source>
        <translation>仪表模式</translation>
    </message>
    <message>
        <source>Mexico</source>
        <translation>西班牙语（墨西哥）</translation>
    </message>
    <message>
        <source>Mileage</source>
        <translation>里程</translation>
    </message>
    <message>
        <source>Mirrors and wipers-automatic rain wiper</source>
        <translation>后视镜和雨刮-自动雨刮</translation>
    </message>
    <message>
        <source>Mirrors and wipers-parked off the mirror</source>
        <translation>后视镜和雨刮-驻车折叠后视镜</translation>
    </message>
    <message>
        <source>Mirrors and wipers-rear window wiper when reverse gear</source>
        <translation>后视镜和雨刮-倒车时后窗雨刮</translation>
    </message>
    <message>
        <source>Mirrors and wipers-reversing mirror is lowered profile</source>
        <translation>后视镜和雨刮-倒车时后视镜下翻</translation>
    </message>
    <message>
        <source>Mirrors and wipers-synchronization adjustment mirror</source>
        <translation>后视镜和雨刮-后视镜同步调节</translation>
    </message>
    <message>
        <source>Netherlands</source>
        <translation>荷兰语</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Norway</source>
        <translation>挪威语</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off-road</source>
        <translation>越野</translation>
    </message>
    <message>
        <source>Off-road air conditioning</source>
        <translation>越野空调</translation>
    </message>
    <message>
        <source>Off-road downhill assist</source>
        <translation>越野下坡辅助</translation>
    </message>
    <message>
        <source>Off-road drive device</source>
        <translation>越野驱动装置</translation>
    </message>
    <message>
        <source>Off-road four wheel drive</source>
        <translation>越野四驱</translation>
    </message>
    <message>
        <source>Off-road parking assist</source>
        <translation>越野泊车辅助</translation>
    </message>
    <message>
        <source>Off-road personalization</source>
        <translation>越野个性化</translation>
    </message>
    <message>
        <source>Off-road ramp start</source>
        <translation>越野坡道起步</translation>
    </message>
    <message>
        <source>Off-road turn to</source>
        <translation>越野转向</translation>
    </message>
    <message>
        <source>Opening and closing-Inductive ail box</source>
        <translation>开闭-感应式后备箱</translation>
    </message>
    <message>
        <source>Opening and closing-aAutomatic lock</source>
        <translation>开闭-自动落锁</translation>
    </message>
    <message>
        <source>Opening and closing-dDoor unlock</source>
        <translation>开闭-车门解锁</translation>
    </message>
    <message>
        <source>Opening and closing-easy opening of car windows</source>
        <translation>开闭-便捷开窗</translation>
    </message>
    <message>
        <source>Opening and closing-front window</source>
        <translation>开闭-前车窗</translation>
    </message>
    <message>
        <source>Opening and closing-indoor monitoring system</source>
        <translation>开闭-车内监控系统</translation>
    </message>
    <message>
        <source>Opening and closing-rear eindow</source>
        <translation>开闭-后车窗</translation>
    </message>
    <message>
        <source>Opening and closing-sliding aunroof</source>
        <translation>开闭-滑动天窗</translation>
    </message>
    <message>
        <source>Opening and closing-voice feedback</source>
        <translation>开闭-声音反馈</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>Paraguay</source>
        <translation>西班牙语（巴拉圭）</translation>
    </message>
    <message>
        <source>Parallel parking</source>
        <translation>侧方停车</translation>
    </message>
    <message>
        <source>Parking and ahunting-back tone</source>
        <translation>泊车和调车-后部提示音</translation>
    </message>
    <message>
        <source>Parking and shunting-Front tone</source>
        <translation>泊车和调车-前部提示音</translation>
    </message>
    <message>
        <source>Parking and shunting-activation</source>
        <translation>泊车和调车-激活</translation>
    </message>
    <message>
        <source>Parking and shunting-automatic activation</source>
        <translation>泊车和调车-自动激活</translation>
    </message>
    <message>
        <source>Parking and shunting-exit parking assist</source>
        <translation>泊车和调车-出库辅助</translation>
    </message>
    <message>
        <source>Parking and shunting-front volume</source>
        <translation>泊车和调车-前部音量</translation>
    </message>
    <message>
        <source>Parking and shunting-panoramic video</source>
        <translation>泊车和调车-全景影像</translation>
    </message>
    <message>
        <source>Parking and shunting-parking brake function</source>
        <translation>泊车和调车-驻车制动功能</translation>
    </message>
    <message>
        <source>Parking and shunting-radar thumbnail</source>
        <translation>泊车和调车-雷达缩略图</translation>
    </message>
    <message>
        <source>Parking and shunting-rear volume</source>
        <translation>泊车和调车-后部音量</translation>
    </message>
    <message>
        <source>Parking and shunting-reverse mode</source>
        <translation>泊车和调车-倒车模式</translation>
    </message>
    <message>
        <source>Poland</source>
        <translation>波兰语</translation>
    </message>
    <message>
        <source>Portugal</source>
        <translation>葡萄牙语</translation>
    </message>
    <message>
        <source>Postpone</source>
        <translation>较晚</translation>
    </message>
    <message>
        <source>Press down</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>Remote keyless memory match</source>
        <translation>遥控钥匙记忆匹配</translation>
    </message>
    <message>
        <source>Reversing radar-brightness value</source>
        <translation>倒车雷达-亮度值</translation>
    </message>
    <message>
        <source>Reversing radar-contrast value</source>
        <translation>倒车雷达-对比度值</translation>
    </message>
    <message>
        <source>Reversing radar-saturated color value</source>
        <translation>倒车雷达-饱和度值</translation>
    </message>
    <message>
        <source>Right instrument display</source>
        <translation>仪表右侧显示</translation>
    </message>
    <message>
        <source>Right view</source>
        <translation>右视</translation>
    </message>
    <message>
        <source>Right view mode</source>
        <translation>右视模式</translation>
    </message>
    <message>
        <source>Romania</source>
        <translation>罗马尼亚语</translation>
    </message>
    <message>
        <source>Russia</source>
        <translation>俄语</translation>
    </message>
    <message>
        <source>Serbia</source>
        <translation>塞尔维亚语</translation>
    </message>
    <message>
        <source>Slovakia</source>
        <translation>斯洛伐克语</translation>
    </message>
    <message>
        <source>Slovenia</source>
        <translation>斯洛文尼亚语</translation>
    </message>
    <message>
        <source>Snowfield</source>
        <translation>雪地</translation>
    </message>
    <message>
        <source>Spain</source>
        <translation>西班牙语</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>运动</translation>
    </message>
    <message>
        <source>Start stop close</source>
        <translation>启停关闭</translation>
    </message>
    <message>
        <source>Sweden</source>
        <translation>瑞典语</translation>
    </message>
    <message>
        <source>Tange assign the key to the current user account</source>
        <translation>将钥匙分配给当前用户账户</translation>
    </message>
    <message>
        <source>Tange key distribution</source>
        <translation>钥匙分配</translation>
    </message>
    <message>
        <source>Tange personalise</source>
        <translation>个性化设置</translation>
    </message>
    <message>
        <source>Tange user account</source>
        <translation>用户账户</translation>
    </message>
    <message>
        <source>The car key is activated</source>
        <translation>车钥匙已激活</translation>
    </message>
    <message>
        <source>Timely</source>
        <translation>适中</translation>
    </message>
    <message>
        <source>Tire settings-Speeding reminder</source>
        <translation>轮胎设置-超速提醒</translation>
    </message>
    <message>
        <source>Tire settings-direct tire pressure monitoring</source>
        <translation>轮胎设置-直接式胎压监测</translation>
    </message>
    <message>
        <source>Tire settings-speed alarm</source>
        <translation>轮胎设置-车速报警</translation>
    </message>
    <message>
        <source>Tire settings-speed unit</source>
        <translation>轮胎设置-速度单位</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其语</translation>
    </message>
    <message>
        <source>Two-sided mode</source>
        <translation>双侧模式</translation>
    </message>
    <message>
        <source>Ukraine</source>
        <translation>乌克兰语</translation>
    </message>
    <message>
        <source>Unilateral doors</source>
        <translation>单侧车门</translation>
    </message>
    <message>
        <source>Vertical parking</source>
        <translation>垂直停车</translation>
    </message>
    <message>
        <source>Visitor</source>
        <translation>访客</translation>
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
        <translation>激活</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>bar</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>classic</source>
        <translation>经典</translation>
    </message>
    <message>
        <source>closure</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>compass</source>
        <translation>指南针</translation>
    </message>
    <message>
        <source>consumption</source>
        <translation>消耗</translation>
    </message>
    <message>
        <source>customize</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>dark blue</source>
        <translation>深蓝色</translation>
    </message>
    <message>
        <source>disappear</source>
        <translation>消失</translation>
    </message>
    <message>
        <source>driven distance</source>
        <translation>行驶里程</translation>
    </message>
    <message>
        <source>economy</source>
        <translation>经济</translation>
    </message>
    <message>
        <source>economy+</source>
        <translation>经济+</translation>
    </message>
    <message>
        <source>fail</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>freed</source>
        <translation>已释放</translation>
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
        <translation>宝石蓝</translation>
    </message>
    <message>
        <source>great</source>
        <translation>极大</translation>
    </message>
    <message>
        <source>in advance</source>
        <translation>较早</translation>
    </message>
    <message>
        <source>invalid</source>
        <translation>无效</translation>
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
        <translation>浅绿色</translation>
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
        <translation>导航</translation>
    </message>
    <message>
        <source>personalise</source>
        <translation>个性化</translation>
    </message>
    <message>
        <source>pink</source>
        <translation>粉色</translation>
    </message>
    <message>
        <source>pop up</source>
        <translation>弹出</translation>
    </message>
    <message>
        <source>psi</source>
        <translation>psi</translation>
    </message>
    <message>
        <source>rearview</source>
        <translation>后视</translation>
    </message>
    <message>
        <source>single doors</source>
        <translation>单门</translation>
    </message>
    <message>
        <source>small</source>
        <translation>小</translation>
    </message>
    <message>
        <source>sports</source>
        <translation>运动</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>标准</translation>
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
        <translation>单位-油耗</translation>
    </message>
    <message>
        <source>unit-mileage</source>
        <translation>单位-里程</translation>
    </message>
    <message>
        <source>unit-power consumption</source>
        <translation>单位-电耗</translation>
    </message>
    <message>
        <source>unit-power consumption(PurePower)</source>
        <translation>单位-电耗（纯电）</translation>
    </message>
    <message>
        <source>unit-speed</source>
        <translation>单位-车速</translation>
    </message>
    <message>
        <source>unit-temperature</source>
        <translation>单位-温度</translation>
    </message>
    <message>
        <source>unit-tire pressure</source>
        <translation>单位-胎压</translation>
    </message>
    <message>
        <source>unit-volume</source>
        <translation>单位-容积</translation>
    </message>
    <message>
        <source>view 1</source>
        <translation>视图1</translation>
    </message>
    <message>
        <source>view 2</source>
        <translation>视图2</translation>
    </message>
    <message>
        <source>view 3</source>
        <translation>视图3</translation>
    </message>
    <message>
        <source>wait</source>
        <translation>等待</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>黄色</translation>
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
        <translation>加油后平均油耗</translation>
    </message>
    <message>
        <source>Average consumption since start</source>
        <translation>启动后平均油耗</translation>
    </message>
    <message>
        <source>Average power consumption since refueling</source>
        <translation>加油后平均电耗</translation>
    </message>
    <message>
        <source>Average power consumption since startup</source>
        <translation>启动后平均电耗</translation>
    </message>
    <message>
        <source>Average speed since refueling</source>
        <translation>加油后平均车速</translation>
    </message>
    <message>
        <source>Average vehicle speed since start</source>
        <translation>启动后平均车速</translation>
    </message>
    <message>
        <source>Comfortable Appliances</source>
        <translation>舒适用电器</translation>
    </message>
    <message>
        <source>Distance since start</source>
        <translation>启动后行驶里程</translation>
    </message>
    <message>
        <source>Driving time since start</source>
        <translation>启动后行驶时间</translation>
    </message>
    <message>
        <source>Electric range</source>
        <translation>纯电续航里程</translation>
    </message>
    <message>
        <source>Engine Oil Display</source>
        <translation>机油显示</translation>
    </message>
    <message>
        <source>Fuel mileage</source>
        <translation>燃油续航里程</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Long driving Time</source>
        <translation>长时行驶时间</translation>
    </message>
    <message>
        <source>Long term average consumption</source>
        <translation>长期平均油耗</translation>
    </message>
    <message>
        <source>Long term average speed</source>
        <translation>长期平均车速</translation>
    </message>
    <message>
        <source>Long term mileage</source>
        <translation>长期行驶里程</translation>
    </message>
    <message>
        <source>Long withAn average power consumption</source>
        <translation>长期平均电耗</translation>
    </message>
    <message>
        <source>Mileage since refueling</source>
        <translation>加油后行驶里程</translation>
    </message>
    <message>
        <source>Total cruising range</source>
        <translation>总续航里程</translation>
    </message>
    <message>
        <source>Travel time since refueling</source>
        <translation>加油后行驶时间</translation>
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
        <translation>分钟</translation>
    </message>
    <message>
        <source>Battery life</source>
        <translation>纯电续航里程</translation>
    </message>
    <message>
        <source>Bright</source>
        <translation>亮</translation>
    </message>
    <message>
        <source>Co-drive</source>
        <translation>联合驱动</translation>
    </message>
    <message>
        <source>Electric drive</source>
        <translation>纯电驱动</translation>
    </message>
    <message>
        <source>Endurance potential</source>
        <translation>续航潜力</translation>
    </message>
    <message>
        <source>Energy flow</source>
        <translation>能量流</translation>
    </message>
    <message>
        <source>Energy flow from high voltage battery</source>
        <translation>高压电池输出能量流</translation>
    </message>
    <message>
        <source>Energy recovery</source>
        <translation>能量回收</translation>
    </message>
    <message>
        <source>Internal combustion engine drive</source>
        <translation>内燃机驱动</translation>
    </message>
    <message>
        <source>Proportion</source>
        <translation>比例</translation>
    </message>
    <message>
        <source>TEnergy flow to high-voltage battery</source>
        <translation>流向高压电池的能量流</translation>
    </message>
    <message>
        <source>This energy recovery value</source>
        <translation>本次能量回收值</translation>
    </message>
    <message>
        <source>Tire drive</source>
        <translation>车轮驱动</translation>
    </message>
    <message>
        <source>battery power</source>
        <translation>电池电量</translation>
    </message>
    <message>
        <source>driven distance</source>
        <translation>行驶里程</translation>
    </message>
    <message>
        <source>engine</source>
        <translation>发动机</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
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
        <translation>复位</translation>
    </message>
    <message>
        <source>Front left tire</source>
        <translation>左前轮胎</translation>
    </message>
    <message>
        <source>Front right tire</source>
        <translation>右前轮胎</translation>
    </message>
    <message>
        <source>Left front tire pressure value</source>
        <translation>左前胎压值</translation>
    </message>
    <message>
        <source>Left rear tire pressure value</source>
        <translation>左后胎压值</translation>
    </message>
    <message>
        <source>No display</source>
        <translation>不显示</translation>
    </message>
    <message>
        <source>Please check tire pressure</source>
        <translation>请检查胎压</translation>
    </message>
    <message>
        <source>Rear left tire</source>
        <translation>左后轮胎</translation>
    </message>
    <message>
        <source>Rear right tire</source>
        <translation>右后轮胎</translation>
    </message>
    <message>
        <source>Right front tire pressure value</source>
        <translation>右前胎压值</translation>
    </message>
    <message>
        <source>Right rear tire pressure value</source>
        <translation>右后胎压值</translation>
    </message>
    <message>
        <source>TPMS</source>
        <translation>TPMS</translation>
    </message>
    <message>
        <source>Tire loss</source>
        <translation>轮胎失压</translation>
    </message>
    <message>
        <source>Tire pressure is normal</source>
        <translation>胎压正常</translation>
    </message>
    <message>
        <source>Tire pressure is too low</source>
        <translation>胎压过低</translation>
    </message>
    <message>
        <source>abnormal</source>
        <translation>异常</translation>
    </message>
    <message>
        <source>alarm type</source>
        <translation>报警类型</translation>
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
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Oil change service days</source>
        <translation>换油保养天数</translation>
    </message>
    <message>
        <source>Oil change service distance</source>
        <translation>换油保养里程</translation>
    </message>
    <message>
        <source>Volkswagen inspection days</source>
        <translation>大众检查天数</translation>
    </message>
    <message>
        <source>Volkswagen inspection distance</source>
        <translation>大众检查里程</translation>
    </message>
    <message>
        <source>Wiper blade in maintenance position</source>
        <translation>雨刮片处于维护位置</translation>
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
        <translation>空调控制</translation>
    </message>
    <message>
        <source>Battery charging online</source>
        <translation>充电目标电量</translation>
    </message>
    <message>
        <source>Bullet frame</source>
        <translation>弹窗</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>未选</translation>
    </message>
    <message>
        <source>Charge</source>
        <translation>充电</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>已选</translation>
    </message>
    <message>
        <source>Departure hour</source>
        <translation>出发时间（时）</translation>
    </message>
    <message>
        <source>Departure minutes</source>
        <translation>出发时间（分）</translation>
    </message>
    <message>
        <source>Electric management-Location 1</source>
        <translation>电能管理-位置1</translation>
    </message>
    <message>
        <source>Electric management-Location 2</source>
        <translation>电能管理-位置2</translation>
    </message>
    <message>
        <source>Electric management-Location 3</source>
        <translation>电能管理-位置3</translation>
    </message>
    <message>
        <source>End hour of night time</source>
        <translation>夜间时段结束（时）</translation>
    </message>
    <message>
        <source>End minute of night session</source>
        <translation>夜间时段结束（分）</translation>
    </message>
    <message>
        <source>Friday</source>
        <translation>星期五</translation>
    </message>
    <message>
        <source>Maximum charging current</source>
        <translation>最大充电电流</translation>
    </message>
    <message>
        <source>Monday</source>
        <translation>星期一</translation>
    </message>
    <message>
        <source>Night time current</source>
        <translation>夜间电流</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Saturday</source>
        <translation>星期六</translation>
    </message>
    <message>
        <source>Start hour of night session</source>
        <translation>夜间时段开始（时）</translation>
    </message>
    <message>
        <source>Start minute of night session</source>
        <translation>夜间时段开始（分）</translation>
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
        <translation>重复方式</translation>
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
        <translation>重复</translation>
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
        <translation>不显示</translation>
    </message>
    <message>
        <source>Have TPMS equipment</source>
        <translation>有胎压监测设备</translation>
    </message>
    <message>
        <source>Instantaneous power consumption</source>
        <translation>瞬时电耗</translation>
    </message>
    <message>
        <source>KPA</source>
        <translation>KPA</translation>
    </message>
    <message>
        <source>Left front tire pressure value</source>
        <translation>左前胎压值</translation>
    </message>
    <message>
        <source>Left rear tire pressure value</source>
        <translation>左后胎压值</translation>
    </message>
    <message>
        <source>Line up</source>
        <translation>排列显示</translation>
    </message>
    <message>
        <source>No TPMS device</source>
        <translation>无胎压监测设备</translation>
    </message>
    <message>
        <source>One way distance</source>
        <translation>单程里程</translation>
    </message>
    <message>
        <source>PSI</source>
        <translation>PSI</translation>
    </message>
    <message>
        <source>Right front tire pressure value</source>
        <translation>右前胎压值</translation>
    </message>
    <message>
        <source>Right rear tire pressure value</source>
        <translation>右后胎压值</translation>
    </message>
    <message>
        <source>Show a car</source>
        <translation>显示车辆</translation>
    </message>
    <message>
        <source>Show alarm screen</source>
        <translation>显示报警画面</translation>
    </message>
    <message>
        <source>Spare tire</source>
        <translation>备胎</translation>
    </message>
    <message>
        <source>TPMS alarm screen</source>
        <translation>胎压报警画面</translation>
    </message>
    <message>
        <source>TPMS spare tire</source>
        <translation>胎压监测备胎</translation>
    </message>
    <message>
        <source>TPMS status information</source>
        <translation>胎压监测状态信息</translation>
    </message>
    <message>
        <source>TPMS tire display mode</source>
        <translation>胎压轮胎显示模式</translation>
    </message>
    <message>
        <source>TPMS unit</source>
        <translation>胎压单位</translation>
    </message>
    <message>
        <source>normal status</source>
        <translation>正常状态</translation>
    </message>
    <message>
        <source>show</source>
        <translation>显示</translation>
    </message>
</context>
<context>
    <name>CarInfoItem30_2</name>
    <message>
        <source>Battery driven motor</source>
        <translation>电池驱动电机</translation>
    </message>
    <message>
        <source>Battery power</source>
        <translation>电池电量</translation>
    </message>
    <message>
        <source>Engine drive motor</source>
        <translation>发动机驱动电机</translation>
    </message>
    <message>
        <source>Engine driven wheels</source>
        <translation>发动机驱动车轮</translation>
    </message>
    <message>
        <source>Have</source>
        <translation>有</translation>
    </message>
    <message>
        <source>Hybrid electric vehicle</source>
        <translation>混合动力车</translation>
    </message>
    <message>
        <source>Motor drive battery</source>
        <translation>电机给电池充电</translation>
    </message>
    <message>
        <source>Motor drive wheels</source>
        <translation>电机驱动车轮</translation>
    </message>
    <message>
        <source>Wheel drive motor</source>
        <translation>车轮驱动电机</translation>
    </message>
    <message>
        <source>without</source>
        <translation>无</translation>
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
        <translation> 15款凯美瑞、15款锐志</translation>
    </message>
    <message>
        <source>05~09 old Ruizhi (automatic air conditioner)</source>
        <translation>05~09款老锐志（自动空调）</translation>
    </message>
    <message>
        <source>07~15 models of Lancool top (4-zone automatic air conditioning)</source>
        <translation>07~15款兰德酷路泽顶配（四区自动空调）</translation>
    </message>
    <message>
        <source>09 Camry (08-11)</source>
        <translation>09款凯美瑞（08-11）</translation>
    </message>
    <message>
        <source>09 Highlander Manual Air Conditioner</source>
        <translation>09款汉兰达手动空调</translation>
    </message>
    <message>
        <source>09 Highlander automatic air conditioner</source>
        <translation>09款汉兰达自动空调</translation>
    </message>
    <message>
        <source>09~12 old RAV4 (automatic air conditioner)</source>
        <translation>09~12款老RAV4（自动空调）</translation>
    </message>
    <message>
        <source>12 Camry models, 10-14 Domineering automatic air conditioners</source>
        <translation>12款凯美瑞、10-14款霸道自动空调</translation>
    </message>
    <message>
        <source>12 LAND CRUISEs</source>
        <translation>12款兰德酷路泽</translation>
    </message>
    <message>
        <source>13 top models of Reiz (automatic air conditioner)</source>
        <translation>13款锐志顶配（自动空调）</translation>
    </message>
    <message>
        <source>13th generation crown (10-12 styles)</source>
        <translation>第十三代皇冠（10-12款）</translation>
    </message>
    <message>
        <source>14 Domineering Manual Air Conditioning Models</source>
        <translation>14款霸道手动空调</translation>
    </message>
    <message>
        <source>14 Tundra (Automatic Air Conditioning)</source>
        <translation>14款坦途（自动空调）</translation>
    </message>
    <message>
        <source>14 Tundra (manual air conditioner)</source>
        <translation>14款坦途（手动空调）</translation>
    </message>
    <message>
        <source>14 ​​models of Corolla (automatic air conditioning)</source>
        <translation>14款卡罗拉（自动空调）</translation>
    </message>
    <message>
        <source>15S</source>
        <translation>15S</translation>
    </message>
    <message>
        <source>15~18 models Highlander automatic air conditioner</source>
        <translation>15~18款汉兰达自动空调</translation>
    </message>
    <message>
        <source>15~18 models Highlander manual air conditioner</source>
        <translation>15~18款汉兰达手动空调</translation>
    </message>
    <message>
        <source>16 LAND CRUISE, 12 Reiz</source>
        <translation>16款兰德酷路泽、12款锐志</translation>
    </message>
    <message>
        <source>16~18 RAV4 Rongfang (Automatic Air Conditioning)</source>
        <translation>16~18款RAV4荣放（自动空调）</translation>
    </message>
    <message>
        <source>18 Camrys (Automatic Air Conditioning)</source>
        <translation>18款凯美瑞（自动空调）</translation>
    </message>
    <message>
        <source>18 Domineering (Automatic Air Conditioning)</source>
        <translation>18款霸道（自动空调）</translation>
    </message>
    <message>
        <source>18 Domineering Manual Air Conditioners</source>
        <translation>18款霸道手动空调</translation>
    </message>
    <message>
        <source>2D display</source>
        <translation>2D显示</translation>
    </message>
    <message>
        <source>30S</source>
        <translation>30S</translation>
    </message>
    <message>
        <source>3D display</source>
        <translation>3D显示</translation>
    </message>
    <message>
        <source>7 models of old Corolla (automatic air conditioning)</source>
        <translation>7款老卡罗拉（自动空调）</translation>
    </message>
    <message>
        <source>7.5s</source>
        <translation>7.5s</translation>
    </message>
    <message>
        <source>Amplifier Switch</source>
        <translation>功放开关</translation>
    </message>
    <message>
        <source>Azure blue</source>
        <translation>天蓝色</translation>
    </message>
    <message>
        <source>Bright orange</source>
        <translation>亮橙色</translation>
    </message>
    <message>
        <source>Color Theme</source>
        <translation>颜色主题</translation>
    </message>
    <message>
        <source>Compass</source>
        <translation>指南针</translation>
    </message>
    <message>
        <source>Compass 2D/3D display</source>
        <translation>指南针2D/3D显示</translation>
    </message>
    <message>
        <source>Convenience service</source>
        <translation>便捷服务</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>捷克语</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>丹麦语</translation>
    </message>
    <message>
        <source>Dark orange</source>
        <translation>深橙色</translation>
    </message>
    <message>
        <source>Display dynamic track line</source>
        <translation>显示动态轨迹线</translation>
    </message>
    <message>
        <source>Display static track line</source>
        <translation>显示静态轨迹线</translation>
    </message>
    <message>
        <source>Display warning line</source>
        <translation>显示警示线</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>荷兰语</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>远</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation>芬兰语</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法语</translation>
    </message>
    <message>
        <source>Front Radar Distance</source>
        <translation>前雷达距离</translation>
    </message>
    <message>
        <source>Fuel Consumption Unit</source>
        <translation>油耗单位</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德语</translation>
    </message>
    <message>
        <source>Greek</source>
        <translation>希腊语</translation>
    </message>
    <message>
        <source>Have</source>
        <translation>有</translation>
    </message>
    <message>
        <source>Horizontal screen - 22 Highlanders - top configuration (with LCD instrument)</source>
        <translation>横屏-22款汉兰达-顶配（带液晶仪表）</translation>
    </message>
    <message>
        <source>Horizontal screen-18-21 Camry-top configuration (with LCD instrument)</source>
        <translation>横屏-18-21款凯美瑞-顶配（带液晶仪表）</translation>
    </message>
    <message>
        <source>Horizontal screen-21 models of Asian lion-top configuration (with LCD instrument)</source>
        <translation>横屏-21款亚洲狮-顶配（带液晶仪表）</translation>
    </message>
    <message>
        <source>Hungarian</source>
        <translation>匈牙利语</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>意大利语</translation>
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
        <translation>车型选择</translation>
    </message>
    <message>
        <source>Mute Switch</source>
        <translation>静音开关</translation>
    </message>
    <message>
        <source>Non-mute</source>
        <translation>非静音</translation>
    </message>
    <message>
        <source>Northeast</source>
        <translation>东北</translation>
    </message>
    <message>
        <source>Northwest</source>
        <translation>西北</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>挪威语</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Original car panoramic camera node</source>
        <translation>原车全景摄像头节点</translation>
    </message>
    <message>
        <source>Original car power amplifier node</source>
        <translation>原车功放节点</translation>
    </message>
    <message>
        <source>Original car rear seat node</source>
        <translation>原车后排节点</translation>
    </message>
    <message>
        <source>Outside Lighting Off Time</source>
        <translation>车外照明关闭时间</translation>
    </message>
    <message>
        <source>Panorama automatic and non-automatic setting</source>
        <translation>全景自动与非自动设置</translation>
    </message>
    <message>
        <source>Panorama exit</source>
        <translation>全景退出</translation>
    </message>
    <message>
        <source>Panorama trajectory setting</source>
        <translation>全景轨迹设置</translation>
    </message>
    <message>
        <source>Panoramic Cut</source>
        <translation>全景切换</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>波兰语</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>葡萄牙语</translation>
    </message>
    <message>
        <source>Radar distance behind</source>
        <translation>后雷达距离</translation>
    </message>
    <message>
        <source>Radar setting status</source>
        <translation>雷达设置状态</translation>
    </message>
    <message>
        <source>Radar switch</source>
        <translation>雷达开关</translation>
    </message>
    <message>
        <source>Radar volume intensity</source>
        <translation>雷达音量强度</translation>
    </message>
    <message>
        <source>Reverse gear mode setting</source>
        <translation>倒挡模式设置</translation>
    </message>
    <message>
        <source>Reverse gear trajectory setting</source>
        <translation>倒挡轨迹设置</translation>
    </message>
    <message>
        <source>Roman</source>
        <translation>罗马尼亚语</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄语</translation>
    </message>
    <message>
        <source>Set panoramic track</source>
        <translation>设置全景轨迹</translation>
    </message>
    <message>
        <source>Set reversing trajectory</source>
        <translation>设置倒车轨迹</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>Slovak</source>
        <translation>斯洛伐克语</translation>
    </message>
    <message>
        <source>Southeast</source>
        <translation>东南</translation>
    </message>
    <message>
        <source>Southwest</source>
        <translation>西南</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙语</translation>
    </message>
    <message>
        <source>Start after parking</source>
        <translation>驻车后启动</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>瑞典语</translation>
    </message>
    <message>
        <source>Tandem reverse open narrow confirmation Return</source>
        <translation>串联倒车开启窄道确认-返回</translation>
    </message>
    <message>
        <source>Tandem reversing open narrow confirmation Agree</source>
        <translation>串联倒车开启窄道确认-同意</translation>
    </message>
    <message>
        <source>Track and dynamic trajectory switch</source>
        <translation>轨迹与动态轨迹开关</translation>
    </message>
    <message>
        <source>True East</source>
        <translation>正东</translation>
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
        <translation>土耳其语</translation>
    </message>
    <message>
        <source>Ukrainian</source>
        <translation>乌克兰语</translation>
    </message>
    <message>
        <source>Zhengnan</source>
        <translation>正南</translation>
    </message>
    <message>
        <source>blue-green</source>
        <translation>蓝绿色</translation>
    </message>
    <message>
        <source>language settings</source>
        <translation>语言设置</translation>
    </message>
    <message>
        <source>mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>near</source>
        <translation>近</translation>
    </message>
    <message>
        <source>null</source>
        <translation>无</translation>
    </message>
    <message>
        <source>traditional Chinese</source>
        <translation>繁体中文</translation>
    </message>
    <message>
        <source>without</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>CarInfoItem30_4</name>
    <message>
        <source>ASL OFF</source>
        <translation>ASL关</translation>
    </message>
    <message>
        <source>ASL ON</source>
        <translation>ASL开</translation>
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
        <translation>蜂鸣</translation>
    </message>
    <message>
        <source>Current volume</source>
        <translation>当前音量</translation>
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
        <translation>回环声音</translation>
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
        <translation>无</translation>
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
        <translation>1挡</translation>
    </message>
    <message>
        <source>2st gear</source>
        <translation>2挡</translation>
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
        <translation>3挡</translation>
    </message>
    <message>
        <source>4st gear</source>
        <translation>4挡</translation>
    </message>
    <message>
        <source>5st gear</source>
        <translation>5挡</translation>
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
        <translation>AUTO键与内外循环联动</translation>
    </message>
    <message>
        <source>Air conditioning and A UTO key linkage</source>
        <translation>空调与AUTO键联动</translation>
    </message>
    <message>
        <source>Auto lock by shift from P</source>
        <translation>离开P挡自动落锁</translation>
    </message>
    <message>
        <source>Auto lock by shift to P</source>
        <translation>挂入P挡自动落锁</translation>
    </message>
    <message>
        <source>Auto relock timer</source>
        <translation>自动重新落锁时间</translation>
    </message>
    <message>
        <source>Automatic headlight off timer</source>
        <translation>大灯自动关闭时间</translation>
    </message>
    <message>
        <source>Autoo lock by speed</source>
        <translation>车速自动落锁</translation>
    </message>
    <message>
        <source>Camera track</source>
        <translation>摄像头轨迹</translation>
    </message>
    <message>
        <source>Daytime running lights</source>
        <translation>日间行车灯</translation>
    </message>
    <message>
        <source>Driver seat door opening linkage  unlock</source>
        <translation>开驾驶座车门联动解锁</translation>
    </message>
    <message>
        <source>Electric rear door opening and gear adjustment</source>
        <translation>电动尾门开启与挡位调节</translation>
    </message>
    <message>
        <source>Headlight sensitivity</source>
        <translation>大灯灵敏度</translation>
    </message>
    <message>
        <source>Lock and unlock emergency flashing response light</source>
        <translation>上锁解锁应急灯闪烁应答</translation>
    </message>
    <message>
        <source>Lock unlock feedback tone</source>
        <translation>上锁解锁提示音</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Operate the key twice to unlock</source>
        <translation>操作钥匙两次解锁</translation>
    </message>
    <message>
        <source>Remote 2 press lock</source>
        <translation>遥控按两次上锁</translation>
    </message>
    <message>
        <source>Set the car lighting off time</source>
        <translation>设置车灯关闭时间</translation>
    </message>
    <message>
        <source>Show dynamic trajectory</source>
        <translation>显示动态轨迹</translation>
    </message>
    <message>
        <source>Show static trajectory</source>
        <translation>显示静态轨迹</translation>
    </message>
    <message>
        <source>Show warning line</source>
        <translation>显示警示线</translation>
    </message>
    <message>
        <source>Smart car door unlock</source>
        <translation>智能车门解锁</translation>
    </message>
    <message>
        <source>Smart lock and a key to start</source>
        <translation>智能锁与一键启动</translation>
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
        <translation>计量单位</translation>
    </message>
</context>
<context>
    <name>CarInfoItem30_7</name>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Continuous mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>Don&apos;t show</source>
        <translation>不显示</translation>
    </message>
    <message>
        <source>Door closed</source>
        <translation>车门关闭</translation>
    </message>
    <message>
        <source>Door open</source>
        <translation>车门打开</translation>
    </message>
    <message>
        <source>Driving time</source>
        <translation>驾驶时间</translation>
    </message>
    <message>
        <source>Electric back door</source>
        <translation>电动尾门</translation>
    </message>
    <message>
        <source>Inside</source>
        <translation>向内</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption-unit of measure</source>
        <translation>瞬时油耗-计量单位</translation>
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
        <translation>电动尾门运动方向</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>向外</translation>
    </message>
    <message>
        <source>Unit of measure</source>
        <translation>计量单位</translation>
    </message>
</context>
<context>
    <name>CarInfoItem30_8</name>
    <message>
        <source>Last 15 minutes</source>
        <translation>最近15分钟</translation>
    </message>
    <message>
        <source>Last 14 minutes</source>
        <translation>最近14分钟</translation>
    </message>
    <message>
        <source>Last 13 minutes</source>
        <translation>最近13分钟</translation>
    </message>
    <message>
        <source>Last 12 minutes</source>
        <translation>最近12分钟</translation>
    </message>
    <message>
        <source>Last 11 minutes</source>
        <translation>最近11分钟</translation>
    </message>
    <message>
        <source>Last 10 minutes</source>
        <translation>最近10分钟</translation>
    </message>
    <message>
        <source>Last 9 minutes</source>
        <translation>最近9分钟</translation>
    </message>
    <message>
        <source>Last 8 minutes</source>
        <translation>最近8分钟</translation>
    </message>
    <message>
        <source>Last 7 minutes</source>
        <translation>最近7分钟</translation>
    </message>
    <message>
        <source>Last 6 minutes</source>
        <translation>最近6分钟</translation>
    </message>
    <message>
        <source>Last 5 minutes</source>
        <translation>最近5分钟</translation>
    </message>
    <message>
        <source>Last 4 minutes</source>
        <translation>最近4分钟</translation>
    </message>
    <message>
        <source>Last 3 minutes</source>
        <translation>最近3分钟</translation>
    </message>
    <message>
        <source>Last 2 minutes</source>
        <translation>最近2分钟</translation>
    </message>
    <message>
        <source>Last 1 minutes</source>
        <translation>最近1分钟</translation>
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
        <translation>计量单位</translation>
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
        <translation>CD机状态</translation>
    </message>
    <message>
        <source>Ceiling media status-CD player status</source>
        <translation>吸顶媒体状态-CD机状态</translation>
    </message>
    <message>
        <source>Ceiling media status-power supply</source>
        <translation>吸顶媒体状态-电源</translation>
    </message>
    <message>
        <source>Ceiling media status-rear system lock</source>
        <translation>吸顶媒体状态-后排系统锁</translation>
    </message>
    <message>
        <source>Ceiling screen status</source>
        <translation>吸顶屏状态</translation>
    </message>
    <message>
        <source>Current frequency</source>
        <translation>当前频率</translation>
    </message>
    <message>
        <source>Current frequency-band</source>
        <translation>当前频率-波段</translation>
    </message>
    <message>
        <source>Current frequency-preset station number</source>
        <translation>当前频率-预设电台号</translation>
    </message>
    <message>
        <source>Current frequency-scan status</source>
        <translation>当前频率-搜索状态</translation>
    </message>
    <message>
        <source>Current frequency-stereo state</source>
        <translation>当前频率-立体声状态</translation>
    </message>
    <message>
        <source>Current track</source>
        <translation>当前曲目</translation>
    </message>
    <message>
        <source>Currently selected disc number</source>
        <translation>当前所选碟号</translation>
    </message>
    <message>
        <source>Currently selected disc number1</source>
        <translation>当前所选碟号1</translation>
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
        <translation>读碟状态</translation>
    </message>
    <message>
        <source>Dish loop</source>
        <translation>碟片循环</translation>
    </message>
    <message>
        <source>Eject status</source>
        <translation>出碟状态</translation>
    </message>
    <message>
        <source>Error status</source>
        <translation>错误状态</translation>
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
        <translation>空闲状态</translation>
    </message>
    <message>
        <source>Load status</source>
        <translation>载入状态</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Loop off</source>
        <translation>循环关</translation>
    </message>
    <message>
        <source>Monaural</source>
        <translation>单声道</translation>
    </message>
    <message>
        <source>Non-scanning state</source>
        <translation>未搜索状态</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Play order</source>
        <translation>播放顺序</translation>
    </message>
    <message>
        <source>Play status</source>
        <translation>播放状态</translation>
    </message>
    <message>
        <source>Preset station</source>
        <translation>预设电台</translation>
    </message>
    <message>
        <source>Preset station-band</source>
        <translation>预设电台-波段</translation>
    </message>
    <message>
        <source>SD </source>
        <translation>SD </translation>
    </message>
    <message>
        <source>Scan status</source>
        <translation>搜索状态</translation>
    </message>
    <message>
        <source>Shuffle play</source>
        <translation>随机播放</translation>
    </message>
    <message>
        <source>Single cycle</source>
        <translation>单曲循环</translation>
    </message>
    <message>
        <source>Total repertoire</source>
        <translation>曲目总数</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Unlocked</source>
        <translation>未锁定</translation>
    </message>
    <message>
        <source>Wait status</source>
        <translation>等待状态</translation>
    </message>
    <message>
        <source>current time</source>
        <translation>当前时间</translation>
    </message>
    <message>
        <source>play in order</source>
        <translation>顺序播放</translation>
    </message>
    <message>
        <source>stereo</source>
        <translation>立体声</translation>
    </message>
    <message>
        <source>total time</source>
        <translation>总时间</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>without</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>CarInfoItem32_2</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem32_3</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem32_6</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6级</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Vehicle settings</source>
        <translation>车辆设置</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem33_2</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem33_3</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem33_6</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6级</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
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
        <translation>15款GL8 2.4L豪华版</translation>
    </message>
    <message>
        <source>20 Explorers/Mai Ruibao XL/ Trailblazer</source>
        <translation>20款探界者/迈锐宝XL/开拓者</translation>
    </message>
    <message>
        <source>20 Regal/20 Regal</source>
        <translation>20款君威/20款君威</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>阿拉伯语</translation>
    </message>
    <message>
        <source>Automatic parking interface</source>
        <translation>自动泊车界面</translation>
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
        <translation>清除TripA信息</translation>
    </message>
    <message>
        <source>Clear TripB information</source>
        <translation>清除TripB信息</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>丹麦语</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>荷兰语</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>进入</translation>
    </message>
    <message>
        <source>Enter 360 panorama</source>
        <translation>进入360全景</translation>
    </message>
    <message>
        <source>Exit 360 panorama</source>
        <translation>退出360全景</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation>芬兰语</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法语</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德语</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>意大利语</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韩语</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>挪威语</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Orientation type</source>
        <translation>方向类型</translation>
    </message>
    <message>
        <source>Outdoor temperature</source>
        <translation>车外温度</translation>
    </message>
    <message>
        <source>Panorama status 360</source>
        <translation>360全景状态</translation>
    </message>
    <message>
        <source>Parking progress</source>
        <translation>泊车进度</translation>
    </message>
    <message>
        <source>Parking sensor off</source>
        <translation>泊车传感器关闭</translation>
    </message>
    <message>
        <source>Parking space type</source>
        <translation>车位类型</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>波兰语</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>葡萄牙语</translation>
    </message>
    <message>
        <source>Prompt information</source>
        <translation>提示信息</translation>
    </message>
    <message>
        <source>Reversing radar is on</source>
        <translation>倒车雷达已开启</translation>
    </message>
    <message>
        <source>Reversing radar switch information</source>
        <translation>倒车雷达开关信息</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄语</translation>
    </message>
    <message>
        <source>Small light brightness level</source>
        <translation>小灯亮度等级</translation>
    </message>
    <message>
        <source>Small light switch indication</source>
        <translation>小灯开关指示</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙语</translation>
    </message>
    <message>
        <source>Speed signal</source>
        <translation>车速信号</translation>
    </message>
    <message>
        <source>Steering wheel button type</source>
        <translation>方向盘按键类型</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>瑞典语</translation>
    </message>
    <message>
        <source>TripA-average fuel consumption</source>
        <translation>TripA-平均油耗</translation>
    </message>
    <message>
        <source>TripA-average speed</source>
        <translation>TripA-平均车速</translation>
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
        <translation>TripB-平均车速</translation>
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
        <translation>土耳其语</translation>
    </message>
    <message>
        <source>Warning sound volume setting</source>
        <translation>警告音音量设置</translation>
    </message>
    <message>
        <source>default</source>
        <translation>默认</translation>
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
        <translation>续航里程</translation>
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
        <translation>19款科鲁兹低配</translation>
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
        <translation>21款科鲁兹低配</translation>
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
        <translation>电池驱动电机</translation>
    </message>
    <message>
        <source>Battery energy</source>
        <translation>电池能量</translation>
    </message>
    <message>
        <source>Battery level (20 models for smooth tour)</source>
        <translation>电池电量（20款畅巡）</translation>
    </message>
    <message>
        <source>Cadillac CTS high configuration</source>
        <translation>凯迪拉克CTS高配</translation>
    </message>
    <message>
        <source>Cadillac CTS low configuration</source>
        <translation>凯迪拉克CTS低配</translation>
    </message>
    <message>
        <source>Cadillac SRX high configuration</source>
        <translation>凯迪拉克SRX高配</translation>
    </message>
    <message>
        <source>Cadillac SRX low configuration</source>
        <translation>凯迪拉克SRX低配</translation>
    </message>
    <message>
        <source>Energy off</source>
        <translation>能量关闭</translation>
    </message>
    <message>
        <source>Engine drive motor</source>
        <translation>发动机驱动电机</translation>
    </message>
    <message>
        <source>Engine driven wheels</source>
        <translation>发动机驱动车轮</translation>
    </message>
    <message>
        <source>Engine energy</source>
        <translation>发动机能量</translation>
    </message>
    <message>
        <source>Have</source>
        <translation>有</translation>
    </message>
    <message>
        <source>Hybrid electric vehicle</source>
        <translation>混合动力车</translation>
    </message>
    <message>
        <source>Mai Rui Bao XL high configuration</source>
        <translation>迈锐宝XL高配</translation>
    </message>
    <message>
        <source>Mai Rui Bao XL low configuration</source>
        <translation>迈锐宝XL低配</translation>
    </message>
    <message>
        <source>Motor drive battery</source>
        <translation>电机给电池充电</translation>
    </message>
    <message>
        <source>Motor drive wheels</source>
        <translation>电机驱动车轮</translation>
    </message>
    <message>
        <source>New Cruze</source>
        <translation>新科鲁兹</translation>
    </message>
    <message>
        <source>New Cruze top configuration</source>
        <translation>新科鲁兹顶配</translation>
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
        <translation>老迈锐宝高配</translation>
    </message>
    <message>
        <source>Old Mai Rui Bao low configuration</source>
        <translation>老迈锐宝低配</translation>
    </message>
    <message>
        <source>Old Mai Ruibao Top configuration</source>
        <translation>老迈锐宝顶配</translation>
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
        <translation>车辆设置</translation>
    </message>
    <message>
        <source>Volando mid-to-low configuration (horizontal screen only)</source>
        <translation>沃兰多中低配（仅横屏）</translation>
    </message>
    <message>
        <source>Volando top configuration (horizontal screen only)</source>
        <translation>沃兰多顶配（仅横屏）</translation>
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
        <translation>车轮驱动电机</translation>
    </message>
    <message>
        <source>battery power tye</source>
        <translation>电池电量类型</translation>
    </message>
    <message>
        <source>null</source>
        <translation>无</translation>
    </message>
    <message>
        <source>without</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>CarInfoItem37_3</name>
    <message>
        <source>Adaptive cruise start reminder</source>
        <translation>自适应巡航起步提醒</translation>
    </message>
    <message>
        <source>Air conditioner remote start</source>
        <translation>空调远程启动</translation>
    </message>
    <message>
        <source>Air conditioning in the Rear area starts</source>
        <translation>后区空调启动</translation>
    </message>
    <message>
        <source>Back zone and front zone are the same</source>
        <translation>后区与前区相同</translation>
    </message>
    <message>
        <source>Back zone and previous setting</source>
        <translation>后区沿用上次设置</translation>
    </message>
    <message>
        <source>Back zone closed</source>
        <translation>后区关闭</translation>
    </message>
    <message>
        <source>Color settings for body atmosphere</source>
        <translation>车身氛围灯颜色设置</translation>
    </message>
    <message>
        <source>Cozy Blue No.1</source>
        <translation>静谧蓝1号</translation>
    </message>
    <message>
        <source>Cozy Blue No.2</source>
        <translation>静谧蓝2号</translation>
    </message>
    <message>
        <source>Cozy Blue No.3</source>
        <translation>静谧蓝3号</translation>
    </message>
    <message>
        <source>Cozy Blue No.4</source>
        <translation>静谧蓝4号</translation>
    </message>
    <message>
        <source>Cozy Blue No.5</source>
        <translation>静谧蓝5号</translation>
    </message>
    <message>
        <source>Cozy Blue No.6</source>
        <translation>静谧蓝6号</translation>
    </message>
    <message>
        <source>Last set</source>
        <translation>上次设置</translation>
    </message>
    <message>
        <source>Morning Golden No.1</source>
        <translation>晨曦金1号</translation>
    </message>
    <message>
        <source>Morning Golden No.2</source>
        <translation>晨曦金2号</translation>
    </message>
    <message>
        <source>Morning Golden No.3</source>
        <translation>晨曦金3号</translation>
    </message>
    <message>
        <source>Morning Golden No.4</source>
        <translation>晨曦金4号</translation>
    </message>
    <message>
        <source>Morning Golden No.5</source>
        <translation>晨曦金5号</translation>
    </message>
    <message>
        <source>Morning Golden No.6</source>
        <translation>晨曦金6号</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Ramp start assist</source>
        <translation>坡道起步辅助</translation>
    </message>
    <message>
        <source>Rear seat reminder</source>
        <translation>后排座椅提醒</translation>
    </message>
    <message>
        <source>Remote start seat heating</source>
        <translation>远程启动座椅加热</translation>
    </message>
    <message>
        <source>Remote start seat heating-driver&apos;s side</source>
        <translation>远程启动座椅加热-驾驶员侧</translation>
    </message>
    <message>
        <source>Remotely start the seat blower</source>
        <translation>远程启动座椅通风</translation>
    </message>
    <message>
        <source>Twilight Purple No.1</source>
        <translation>暮光紫1号</translation>
    </message>
    <message>
        <source>Twilight Purple No.2</source>
        <translation>暮光紫2号</translation>
    </message>
    <message>
        <source>Twilight Purple No.3</source>
        <translation>暮光紫3号</translation>
    </message>
    <message>
        <source>Twilight Purple No.4</source>
        <translation>暮光紫4号</translation>
    </message>
    <message>
        <source>Twilight Purple No.5</source>
        <translation>暮光紫5号</translation>
    </message>
    <message>
        <source>Twilight Purple No.6</source>
        <translation>暮光紫6号</translation>
    </message>
    <message>
        <source>advanced</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>标准</translation>
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
        <translation>喇叭鸣响时启用</translation>
    </message>
    <message>
        <source>Adaptive forward lighting</source>
        <translation>自适应前照灯</translation>
    </message>
    <message>
        <source>Adaptive headlight</source>
        <translation>自适应大灯</translation>
    </message>
    <message>
        <source>Alarm and brake</source>
        <translation>报警并制动</translation>
    </message>
    <message>
        <source>Alarm tone</source>
        <translation>报警提示音</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>所有车门</translation>
    </message>
    <message>
        <source>Auto assisted rear view mirror</source>
        <translation>后视镜自动辅助</translation>
    </message>
    <message>
        <source>Auto holding of the vehicle</source>
        <translation>自动驻车</translation>
    </message>
    <message>
        <source>Auto rearview mirror folding</source>
        <translation>后视镜自动折叠</translation>
    </message>
    <message>
        <source>Auto relock doores</source>
        <translation>车门自动重新落锁</translation>
    </message>
    <message>
        <source>Automatic anti collision preparation</source>
        <translation>自动防碰撞准备</translation>
    </message>
    <message>
        <source>Automatic driver key recognition</source>
        <translation>驾驶员钥匙自动识别</translation>
    </message>
    <message>
        <source>Automatic wiper</source>
        <translation>自动雨刮</translation>
    </message>
    <message>
        <source>Automatically lock when leaving the car</source>
        <translation>离车自动落锁</translation>
    </message>
    <message>
        <source>Car status notification</source>
        <translation>车辆状态通知</translation>
    </message>
    <message>
        <source>Charging limit</source>
        <translation>充电限值</translation>
    </message>
    <message>
        <source>Collision/detection-prompt type</source>
        <translation>碰撞/检测-提示类型</translation>
    </message>
    <message>
        <source>Convenient drop off options</source>
        <translation>便捷下车选项</translation>
    </message>
    <message>
        <source>Corner and Bend Lighting</source>
        <translation>转角与弯道照明</translation>
    </message>
    <message>
        <source>Corner and corner lighting</source>
        <translation>转角照明</translation>
    </message>
    <message>
        <source>Driver</source>
        <translation>驾驶员</translation>
    </message>
    <message>
        <source>Driver and passenger</source>
        <translation>驾驶员和乘客</translation>
    </message>
    <message>
        <source>Driver seat automatically returns</source>
        <translation>驾驶座自动回位</translation>
    </message>
    <message>
        <source>Driver&apos;s door only</source>
        <translation>仅驾驶员车门</translation>
    </message>
    <message>
        <source>Forgotten key reminder</source>
        <translation>钥匙遗忘提醒</translation>
    </message>
    <message>
        <source>Intelligent Distribution</source>
        <translation>智能分配</translation>
    </message>
    <message>
        <source>Lane change tips</source>
        <translation>变道提示</translation>
    </message>
    <message>
        <source>Left or right hand traffic</source>
        <translation>左侧或右侧通行</translation>
    </message>
    <message>
        <source>Left-Hand Traffic</source>
        <translation>左侧通行</translation>
    </message>
    <message>
        <source>Long-term automatic parking brake</source>
        <translation>长时自动驻车制动</translation>
    </message>
    <message>
        <source>Movement steering</source>
        <translation>运动转向</translation>
    </message>
    <message>
        <source>Near car unlock setting-unlock</source>
        <translation>近车解锁设置-解锁</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Personalization by driver</source>
        <translation>按驾驶员个性化</translation>
    </message>
    <message>
        <source>Pre pedestrian detection</source>
        <translation>行人预检测</translation>
    </message>
    <message>
        <source>Rear vehicle passing warning</source>
        <translation>后方来车警告</translation>
    </message>
    <message>
        <source>Recall memory location</source>
        <translation>调用记忆位置</translation>
    </message>
    <message>
        <source>Remote window control</source>
        <translation>远程车窗控制</translation>
    </message>
    <message>
        <source>Reverse mirrors automatically tilt</source>
        <translation>倒车时后视镜自动下翻</translation>
    </message>
    <message>
        <source>Rght-Hand Traffic</source>
        <translation>右侧通行</translation>
    </message>
    <message>
        <source>Safety seats</source>
        <translation>座椅振动</translation>
    </message>
    <message>
        <source>Short-acting automatic parking brake</source>
        <translation>短时自动驻车制动</translation>
    </message>
    <message>
        <source>Smart light distribution</source>
        <translation>智能配光</translation>
    </message>
    <message>
        <source>Wing blind spot warning</source>
        <translation>侧方盲区警告</translation>
    </message>
    <message>
        <source>alarm</source>
        <translation>报警</translation>
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
        <translation>1分钟</translation>
    </message>
    <message>
        <source>2minute</source>
        <translation>2分钟</translation>
    </message>
    <message>
        <source>30s</source>
        <translation>30s</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>所有车门</translation>
    </message>
    <message>
        <source>Automatic parking unlock</source>
        <translation>驻车自动解锁</translation>
    </message>
    <message>
        <source>Automatically lock at start</source>
        <translation>起步自动落锁</translation>
    </message>
    <message>
        <source>Car body central control operation sign</source>
        <translation>车身中控操作标志</translation>
    </message>
    <message>
        <source>Delay setting of lock out headlights</source>
        <translation>锁车后大灯延时设置</translation>
    </message>
    <message>
        <source>Delayed lock</source>
        <translation>延时落锁</translation>
    </message>
    <message>
        <source>Driver&apos;s door</source>
        <translation>驾驶员车门</translation>
    </message>
    <message>
        <source>Find car light function</source>
        <translation>寻车灯功能</translation>
    </message>
    <message>
        <source>Horn only</source>
        <translation>仅喇叭</translation>
    </message>
    <message>
        <source>Inoperable</source>
        <translation>不可操作</translation>
    </message>
    <message>
        <source>Lights and horns</source>
        <translation>灯光和喇叭</translation>
    </message>
    <message>
        <source>Lights only</source>
        <translation>仅灯光</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Operable</source>
        <translation>可操作</translation>
    </message>
    <message>
        <source>Prevent automatic lock when opening</source>
        <translation>开门时防止自动落锁</translation>
    </message>
    <message>
        <source>Remote control door lock light/horn feedback</source>
        <translation>遥控锁门灯光/喇叭反馈</translation>
    </message>
    <message>
        <source>Remote control to lock the door</source>
        <translation>遥控锁门</translation>
    </message>
    <message>
        <source>Remote control unlockLight feedback</source>
        <translation>遥控解锁灯光反馈</translation>
    </message>
    <message>
        <source>Remote unlock setting</source>
        <translation>遥控解锁设置</translation>
    </message>
    <message>
        <source>Remotely start the vehicle</source>
        <translation>远程启动车辆</translation>
    </message>
    <message>
        <source>Wipers start automatically after reversing</source>
        <translation>倒车后雨刮自动启动</translation>
    </message>
</context>
<context>
    <name>CarInfoItem37_6</name>
    <message>
        <source>Air conditioner start mode setting</source>
        <translation>空调启动模式设置</translation>
    </message>
    <message>
        <source>Air conditioning zone temperature</source>
        <translation>空调分区温度</translation>
    </message>
    <message>
        <source>Air quality sensor settings</source>
        <translation>空气质量传感器设置</translation>
    </message>
    <message>
        <source>Automatic defogging of front window</source>
        <translation>前窗自动除雾</translation>
    </message>
    <message>
        <source>Automatic defogging of rear window</source>
        <translation>后窗自动除雾</translation>
    </message>
    <message>
        <source>Automatic mode air volume setting</source>
        <translation>自动模式风量设置</translation>
    </message>
    <message>
        <source>Automatic seat heating</source>
        <translation>座椅自动加热</translation>
    </message>
    <message>
        <source>Climate switch host air conditioning control interface</source>
        <translation>空调按键切换至主机空调界面</translation>
    </message>
    <message>
        <source>Comfortable</source>
        <translation>舒适</translation>
    </message>
    <message>
        <source>Don&apos;t switch</source>
        <translation>不切换</translation>
    </message>
    <message>
        <source>Follow last setting</source>
        <translation>沿用上次设置</translation>
    </message>
    <message>
        <source>High sensitivity</source>
        <translation>高灵敏度</translation>
    </message>
    <message>
        <source>Low sensitivity</source>
        <translation>低灵敏度</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Partition settings</source>
        <translation>分区设置</translation>
    </message>
    <message>
        <source>Remote start seat automatic heating</source>
        <translation>远程启动座椅自动加热</translation>
    </message>
    <message>
        <source>Show wind speed automatically</source>
        <translation>自动显示风速</translation>
    </message>
    <message>
        <source>Show wind speed value</source>
        <translation>显示风速值</translation>
    </message>
    <message>
        <source>Switch</source>
        <translation>切换</translation>
    </message>
    <message>
        <source>Unified settings</source>
        <translation>统一设置</translation>
    </message>
    <message>
        <source>Ventilation mode(20 types of smooth patrol)</source>
        <translation>通风模式（20款畅巡）</translation>
    </message>
    <message>
        <source>Ventilation only</source>
        <translation>仅通风</translation>
    </message>
    <message>
        <source>Wind speed automatic</source>
        <translation>风速自动</translation>
    </message>
    <message>
        <source>economy</source>
        <translation>经济</translation>
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
        <translation>无</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>RIGH</source>
        <translation>右</translation>
    </message>
    <message>
        <source>SETTING</source>
        <translation>设置</translation>
    </message>
</context>
<context>
    <name>CarInfoItem37_8</name>
    <message>
        <source>Left front tire pressure value</source>
        <translation>左前胎压值</translation>
    </message>
    <message>
        <source>Left rear tire pressure value</source>
        <translation>左后胎压值</translation>
    </message>
    <message>
        <source>Right front tire pressure value</source>
        <translation>右前胎压值</translation>
    </message>
    <message>
        <source>Right rear tire pressure value</source>
        <translation>右后胎压值</translation>
    </message>
</context>
<context>
    <name>CarInfoItem37_9</name>
    <message>
        <source>OnStar system off</source>
        <translation>安吉星系统已关闭</translation>
    </message>
    <message>
        <source>OnStar System on</source>
        <translation>安吉星系统已开启</translation>
    </message>
    <message>
        <source>Phone input</source>
        <translation>电话输入</translation>
    </message>
    <message>
        <source>Dialing</source>
        <translation>正在拨号</translation>
    </message>
    <message>
        <source>Call connected</source>
        <translation>通话已接通</translation>
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
        <translation>接听</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>call</source>
        <translation>呼叫</translation>
    </message>
    <message>
        <source>hang Up</source>
        <translation>挂断</translation>
    </message>
</context>
<context>
    <name>CarInfoItem48_1</name>
    <message>
        <source>American English</source>
        <translation>美式英语</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>阿拉伯语</translation>
    </message>
    <message>
        <source>Australian English</source>
        <translation>澳大利亚英语</translation>
    </message>
    <message>
        <source>Automatic parking status</source>
        <translation>自动泊车状态</translation>
    </message>
    <message>
        <source>British English</source>
        <translation>英式英语</translation>
    </message>
    <message>
        <source>Canadian French</source>
        <translation>加拿大法语</translation>
    </message>
    <message>
        <source>Czech</source>
        <translation>捷克语</translation>
    </message>
    <message>
        <source>Danish</source>
        <translation>丹麦语</translation>
    </message>
    <message>
        <source>Dutch</source>
        <translation>荷兰语</translation>
    </message>
    <message>
        <source>Electric drive-battery with air conditioner</source>
        <translation>电驱-电池供空调</translation>
    </message>
    <message>
        <source>Electric drive-battery with motor</source>
        <translation>电驱-电池供电机</translation>
    </message>
    <message>
        <source>Electric drive-battery with other</source>
        <translation>电驱-电池供其他</translation>
    </message>
    <message>
        <source>Electric drive-drive with motor</source>
        <translation>电驱-电机驱动</translation>
    </message>
    <message>
        <source>Electric drive-motor with ngine</source>
        <translation>电驱-发动机带电机</translation>
    </message>
    <message>
        <source>Electric drive-the battery is pluggedIn</source>
        <translation>电驱-电池已插电</translation>
    </message>
    <message>
        <source>External radar failure</source>
        <translation>外部雷达故障</translation>
    </message>
    <message>
        <source>Finnish</source>
        <translation>芬兰语</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法语</translation>
    </message>
    <message>
        <source>Front radar failure</source>
        <translation>前雷达故障</translation>
    </message>
    <message>
        <source>Front radar working status</source>
        <translation>前雷达工作状态</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德语</translation>
    </message>
    <message>
        <source>Italian</source>
        <translation>意大利语</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韩语</translation>
    </message>
    <message>
        <source>Latin Spanish</source>
        <translation>拉丁美洲西班牙语</translation>
    </message>
    <message>
        <source>Norwegian</source>
        <translation>挪威语</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Oil driven_drive with engine</source>
        <translation>油驱-发动机驱动</translation>
    </message>
    <message>
        <source>Oil driven_fuel with engine</source>
        <translation>油驱-发动机耗油</translation>
    </message>
    <message>
        <source>Oil driven_motor with engine</source>
        <translation>油驱-发动机带电机</translation>
    </message>
    <message>
        <source>Parallel parking</source>
        <translation>侧方停车</translation>
    </message>
    <message>
        <source>Parallel parking space</source>
        <translation>平行车位</translation>
    </message>
    <message>
        <source>Parking assist function</source>
        <translation>泊车辅助功能</translation>
    </message>
    <message>
        <source>Polish</source>
        <translation>波兰语</translation>
    </message>
    <message>
        <source>Portuguese</source>
        <translation>葡萄牙语</translation>
    </message>
    <message>
        <source>Portuguese Brazilian</source>
        <translation>巴西葡萄牙语</translation>
    </message>
    <message>
        <source>Radar status</source>
        <translation>雷达状态</translation>
    </message>
    <message>
        <source>Rear radar failure</source>
        <translation>后雷达故障</translation>
    </message>
    <message>
        <source>Rear radar working status</source>
        <translation>后雷达工作状态</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄语</translation>
    </message>
    <message>
        <source>Simplified Chinese</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙语</translation>
    </message>
    <message>
        <source>Swedish</source>
        <translation>瑞典语</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>泰语</translation>
    </message>
    <message>
        <source>Traditional Chinese</source>
        <translation>繁体中文</translation>
    </message>
    <message>
        <source>Turkish</source>
        <translation>土耳其语</translation>
    </message>
    <message>
        <source>Vertical parking</source>
        <translation>垂直停车</translation>
    </message>
    <message>
        <source>language settings</source>
        <translation>语言设置</translation>
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
        <translation>12款福克斯、翼搏、翼虎、13款嘉年华</translation>
    </message>
    <message>
        <source>17-18 Winged Tiger</source>
        <translation>17-18款翼虎</translation>
    </message>
    <message>
        <source>19 Taurus, 18 Mondeo hybrids</source>
        <translation>19款金牛座、18款蒙迪欧混动</translation>
    </message>
    <message>
        <source>19 Territory</source>
        <translation>19款领界</translation>
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
        <translation>指南针功能</translation>
    </message>
    <message>
        <source>Compass-direction</source>
        <translation>指南针-方向</translation>
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
        <translation>东</translation>
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
        <translation>车型设置</translation>
    </message>
    <message>
        <source>Model settings-Configuration</source>
        <translation>车型设置-配置</translation>
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
        <translation>东北</translation>
    </message>
    <message>
        <source>Northwest</source>
        <translation>西北</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
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
        <translation>收音频率</translation>
    </message>
    <message>
        <source>Radio-preset station</source>
        <translation>收音-预设电台</translation>
    </message>
    <message>
        <source>Random folder</source>
        <translation>文件夹随机</translation>
    </message>
    <message>
        <source>Random track</source>
        <translation>曲目随机</translation>
    </message>
    <message>
        <source>Repeat folder</source>
        <translation>文件夹循环</translation>
    </message>
    <message>
        <source>Repeat track</source>
        <translation>单曲循环</translation>
    </message>
    <message>
        <source>South</source>
        <translation>南</translation>
    </message>
    <message>
        <source>Southeast</source>
        <translation>东南</translation>
    </message>
    <message>
        <source>Southwest</source>
        <translation>西南</translation>
    </message>
    <message>
        <source>TUNER</source>
        <translation>收音机</translation>
    </message>
    <message>
        <source>West</source>
        <translation>西</translation>
    </message>
    <message>
        <source>null</source>
        <translation>无</translation>
    </message>
    <message>
        <source>source</source>
        <translation>音源</translation>
    </message>
    <message>
        <source>source parameter</source>
        <translation>音源参数</translation>
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
        <translation>CD预设电台号或行号</translation>
    </message>
    <message>
        <source>CD character format</source>
        <translation>CD字符格式</translation>
    </message>
    <message>
        <source>CD list</source>
        <translation>CD列表</translation>
    </message>
    <message>
        <source>CD loop</source>
        <translation>CD循环</translation>
    </message>
    <message>
        <source>CD playback status</source>
        <translation>CD播放状态</translation>
    </message>
    <message>
        <source>CD random</source>
        <translation>CD随机</translation>
    </message>
    <message>
        <source>CD source</source>
        <translation>CD音源</translation>
    </message>
    <message>
        <source>CD status</source>
        <translation>CD状态</translation>
    </message>
    <message>
        <source>CD-current time</source>
        <translation>CD-当前时间</translation>
    </message>
    <message>
        <source>CD-current track</source>
        <translation>CD-当前曲目</translation>
    </message>
    <message>
        <source>CD-total repertoire</source>
        <translation>CD-曲目总数</translation>
    </message>
    <message>
        <source>CD-total time</source>
        <translation>CD-总时间</translation>
    </message>
    <message>
        <source>Disc error</source>
        <translation>碟片错误</translation>
    </message>
    <message>
        <source>Don&apos;t show</source>
        <translation>不显示</translation>
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
        <translation>无CD</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Radio</source>
        <translation>收音机</translation>
    </message>
    <message>
        <source>Radio Pre-made radio</source>
        <translation>收音预设电台</translation>
    </message>
    <message>
        <source>Radio band</source>
        <translation>收音波段</translation>
    </message>
    <message>
        <source>Radio frequency</source>
        <translation>收音频率</translation>
    </message>
    <message>
        <source>Reading disc</source>
        <translation>正在读碟</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>pause</source>
        <translation>暂停</translation>
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
        <translation>蓝牙设备连接位</translation>
    </message>
    <message>
        <source>Call status</source>
        <translation>通话状态</translation>
    </message>
    <message>
        <source>Can be selected</source>
        <translation>可选</translation>
    </message>
    <message>
        <source>Cell phone signal status</source>
        <translation>手机信号状态</translation>
    </message>
    <message>
        <source>Current SYNC System Version</source>
        <translation>当前SYNC系统版本</translation>
    </message>
    <message>
        <source>Current dialog type</source>
        <translation>当前对话框类型</translation>
    </message>
    <message>
        <source>Current menu type</source>
        <translation>当前菜单类型</translation>
    </message>
    <message>
        <source>Current row attributes</source>
        <translation>当前行属性</translation>
    </message>
    <message>
        <source>Current row attributes-SelectRow</source>
        <translation>当前行属性-选中行</translation>
    </message>
    <message>
        <source>DOWN</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Don&apos;t show</source>
        <translation>不显示</translation>
    </message>
    <message>
        <source>INFO button status under SYNC MEDIA menu</source>
        <translation>SYNC媒体菜单下INFO键状态</translation>
    </message>
    <message>
        <source>Large icon of current menu</source>
        <translation>当前菜单大图标</translation>
    </message>
    <message>
        <source>Line number</source>
        <translation>行号</translation>
    </message>
    <message>
        <source>MEDIA</source>
        <translation>媒体</translation>
    </message>
    <message>
        <source>Menu percentage display bar properties</source>
        <translation>菜单百分比显示条属性</translation>
    </message>
    <message>
        <source>MenuItem display percentage</source>
        <translation>菜单项显示百分比</translation>
    </message>
    <message>
        <source>NONE</source>
        <translation>无</translation>
    </message>
    <message>
        <source>No SYNC module</source>
        <translation>无SYNC模块</translation>
    </message>
    <message>
        <source>Non-calling state</source>
        <translation>非通话状态</translation>
    </message>
    <message>
        <source>Non-voice state</source>
        <translation>非语音状态</translation>
    </message>
    <message>
        <source>Not selectable</source>
        <translation>不可选</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>PHONE</source>
        <translation>电话</translation>
    </message>
    <message>
        <source>Phone battery status</source>
        <translation>手机电量状态</translation>
    </message>
    <message>
        <source>Phone call status bit</source>
        <translation>电话通话状态位</translation>
    </message>
    <message>
        <source>Phone talk time</source>
        <translation>通话时长</translation>
    </message>
    <message>
        <source>SMS display position</source>
        <translation>短信显示位置</translation>
    </message>
    <message>
        <source>SYNC VERSION NONE</source>
        <translation>无SYNC版本</translation>
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
        <translation>SYNC当前工作模式</translation>
    </message>
    <message>
        <source>SYNC device presence bit</source>
        <translation>SYNC设备存在位</translation>
    </message>
    <message>
        <source>SYNC voice status bit</source>
        <translation>SYNC语音状态位</translation>
    </message>
    <message>
        <source>Selected item in current dialog</source>
        <translation>当前对话框选中项</translation>
    </message>
    <message>
        <source>Show SMS icon</source>
        <translation>显示短信图标</translation>
    </message>
    <message>
        <source>The currently selected item in the menu</source>
        <translation>菜单当前选中项</translation>
    </message>
    <message>
        <source>Track play time</source>
        <translation>曲目播放时间</translation>
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
        <translation>语音状态</translation>
    </message>
    <message>
        <source>With SYNC module</source>
        <translation>有SYNC模块</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未连接</translation>
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
        <translation>调节</translation>
    </message>
    <message>
        <source>Driver side adjustment-high</source>
        <translation>驾驶员侧调节-高</translation>
    </message>
    <message>
        <source>Driver side adjustment-medium</source>
        <translation>驾驶员侧调节-中</translation>
    </message>
    <message>
        <source>Driver side function</source>
        <translation>驾驶员侧功能</translation>
    </message>
    <message>
        <source>Driving side adjustment-low</source>
        <translation>驾驶员侧调节-低</translation>
    </message>
    <message>
        <source>Driving side massage backrest</source>
        <translation>驾驶员侧按摩靠背</translation>
    </message>
    <message>
        <source>Driving side massage cushion</source>
        <translation>驾驶员侧按摩坐垫</translation>
    </message>
    <message>
        <source>Functional status</source>
        <translation>功能状态</translation>
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
        <translation>关</translation>
    </message>
    <message>
        <source>Passenger function</source>
        <translation>乘客功能</translation>
    </message>
    <message>
        <source>Passenger side adjustment-high</source>
        <translation>乘客侧调节-高</translation>
    </message>
    <message>
        <source>Passenger side adjustment-low</source>
        <translation>乘客侧调节-低</translation>
    </message>
    <message>
        <source>Passenger side adjustment-medium</source>
        <translation>乘客侧调节-中</translation>
    </message>
    <message>
        <source>Passenger side massage backrest</source>
        <translation>乘客侧按摩靠背</translation>
    </message>
    <message>
        <source>Passenger side massage cushion</source>
        <translation>乘客侧按摩坐垫</translation>
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
        <translation>无</translation>
    </message>
</context>
<context>
    <name>CarInfoItem48_5</name>
    <message>
        <source>Reset</source>
        <translation>复位</translation>
    </message>
    <message>
        <source>All round</source>
        <translation>声场</translation>
    </message>
    <message>
        <source>Back seat</source>
        <translation>后排</translation>
    </message>
    <message>
        <source>Driving side</source>
        <translation>驾驶侧</translation>
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
        <translation>关</translation>
    </message>
    <message>
        <source>Reset all</source>
        <translation>全部复位</translation>
    </message>
    <message>
        <source>Sound effect mode</source>
        <translation>音效模式</translation>
    </message>
    <message>
        <source>SpeedAnd volume adjustment</source>
        <translation>速度音量调节</translation>
    </message>
    <message>
        <source>Surround sound</source>
        <translation>环绕声</translation>
    </message>
    <message>
        <source>Treble</source>
        <translation>高音</translation>
    </message>
    <message>
        <source>Whole car</source>
        <translation>全车</translation>
    </message>
    <message>
        <source>attenuation</source>
        <translation>衰减</translation>
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
        <translation>立体声</translation>
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
        <translation>氛围灯-自适应</translation>
    </message>
    <message>
        <source>Ambient light-brightness value</source>
        <translation>氛围灯-亮度值</translation>
    </message>
    <message>
        <source>Ambient light-colour</source>
        <translation>氛围灯-颜色</translation>
    </message>
    <message>
        <source>Battery charging</source>
        <translation>电池充电</translation>
    </message>
    <message>
        <source>Battery energy</source>
        <translation>电池能量</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
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
        <translation>高压电池充电中</translation>
    </message>
    <message>
        <source>Cockpit fresh air</source>
        <translation>座舱新风</translation>
    </message>
    <message>
        <source>Driving force demand</source>
        <translation>驱动力需求</translation>
    </message>
    <message>
        <source>Earthy yellow</source>
        <translation>土黄色</translation>
    </message>
    <message>
        <source>Engine brake start</source>
        <translation>发动机制动启动</translation>
    </message>
    <message>
        <source>Engine temperature is too low</source>
        <translation>发动机温度过低</translation>
    </message>
    <message>
        <source>Fuel maintenance</source>
        <translation>燃油维护</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Have</source>
        <translation>有</translation>
    </message>
    <message>
        <source>Heater demand</source>
        <translation>暖风需求</translation>
    </message>
    <message>
        <source>Hybrid drive</source>
        <translation>混合驱动</translation>
    </message>
    <message>
        <source>Inside the car PM 2.5</source>
        <translation>车内PM2.5</translation>
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
        <translation>空挡</translation>
    </message>
    <message>
        <source>Normal operation</source>
        <translation>正常运行</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
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
        <translation>红色</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>天蓝色</translation>
    </message>
    <message>
        <source>Time to fully charge</source>
        <translation>充满电时间</translation>
    </message>
    <message>
        <source>Too fast</source>
        <translation>过快</translation>
    </message>
    <message>
        <source>Vehicle energy status</source>
        <translation>车辆能量状态</translation>
    </message>
    <message>
        <source>battery temperature</source>
        <translation>电池温度</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>charging completed</source>
        <translation>充电完成</translation>
    </message>
    <message>
        <source>electric drive</source>
        <translation>纯电驱动</translation>
    </message>
    <message>
        <source>engine drive</source>
        <translation>发动机驱动</translation>
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
        <translation>绿色</translation>
    </message>
    <message>
        <source>ice blue</source>
        <translation>冰蓝色</translation>
    </message>
    <message>
        <source>idling</source>
        <translation>怠速</translation>
    </message>
    <message>
        <source>idling charging</source>
        <translation>怠速充电</translation>
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
        <translation>红色</translation>
    </message>
    <message>
        <source>remotely started</source>
        <translation>已远程启动</translation>
    </message>
    <message>
        <source>soft blue</source>
        <translation>柔蓝色</translation>
    </message>
    <message>
        <source>without</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>CarInfoItem48_7</name>
    <message>
        <source>10 minutes</source>
        <translation>10分钟</translation>
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
        <translation>15分钟</translation>
    </message>
    <message>
        <source>20s</source>
        <translation>20s</translation>
    </message>
    <message>
        <source>5 minutes</source>
        <translation>5分钟</translation>
    </message>
    <message>
        <source>Activate remote start</source>
        <translation>启用远程启动</translation>
    </message>
    <message>
        <source>Active braking</source>
        <translation>主动制动</translation>
    </message>
    <message>
        <source>Adaptive</source>
        <translation>自适应</translation>
    </message>
    <message>
        <source>Air conditioning control</source>
        <translation>空调控制</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>所有车门</translation>
    </message>
    <message>
        <source>Ambient light</source>
        <translation>氛围灯</translation>
    </message>
    <message>
        <source>Assist</source>
        <translation>辅助</translation>
    </message>
    <message>
        <source>Automatic engine shutdown</source>
        <translation>发动机自动熄火</translation>
    </message>
    <message>
        <source>Automatic folding</source>
        <translation>自动折叠</translation>
    </message>
    <message>
        <source>Automatic high beam</source>
        <translation>自动远光灯</translation>
    </message>
    <message>
        <source>Automatically unlock</source>
        <translation>自动解锁</translation>
    </message>
    <message>
        <source>BAR</source>
        <translation>BAR</translation>
    </message>
    <message>
        <source>Blind spot monitoring</source>
        <translation>盲区监测</translation>
    </message>
    <message>
        <source>Cockpit fresh air</source>
        <translation>座舱新风</translation>
    </message>
    <message>
        <source>Cruise control</source>
        <translation>定速巡航</translation>
    </message>
    <message>
        <source>Distance reminder</source>
        <translation>车距提醒</translation>
    </message>
    <message>
        <source>Driver&apos;s door only</source>
        <translation>仅驾驶员车门</translation>
    </message>
    <message>
        <source>Electric trunk</source>
        <translation>电动后备箱</translation>
    </message>
    <message>
        <source>False lock warning</source>
        <translation>误锁警告</translation>
    </message>
    <message>
        <source>Fatigue driving warning</source>
        <translation>疲劳驾驶警告</translation>
    </message>
    <message>
        <source>Headlight delay</source>
        <translation>大灯延时</translation>
    </message>
    <message>
        <source>KPA</source>
        <translation>KPA</translation>
    </message>
    <message>
        <source>Lane keeping mode</source>
        <translation>车道保持模式</translation>
    </message>
    <message>
        <source>Last set</source>
        <translation>上次设置</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
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
        <translation>雨量感应雨刮</translation>
    </message>
    <message>
        <source>Rear wiper</source>
        <translation>后雨刮</translation>
    </message>
    <message>
        <source>Remote control off</source>
        <translation>遥控关闭</translation>
    </message>
    <message>
        <source>Remote control on</source>
        <translation>遥控开启</translation>
    </message>
    <message>
        <source>Remote unlock</source>
        <translation>遥控解锁</translation>
    </message>
    <message>
        <source>Repeat wiper once</source>
        <translation>雨刮补刮一次</translation>
    </message>
    <message>
        <source>Reverse gear coming warning</source>
        <translation>倒车来车警告</translation>
    </message>
    <message>
        <source>Sensitivity</source>
        <translation>灵敏度</translation>
    </message>
    <message>
        <source>Steering wheel heating and seat air conditioning</source>
        <translation>方向盘加热与座椅空调</translation>
    </message>
    <message>
        <source>Switch prohibited</source>
        <translation>禁止切换</translation>
    </message>
    <message>
        <source>TCS traction control</source>
        <translation>TCS牵引力控制</translation>
    </message>
    <message>
        <source>Temperature unit</source>
        <translation>温度单位</translation>
    </message>
    <message>
        <source>Tire pressure unit</source>
        <translation>胎压单位</translation>
    </message>
    <message>
        <source>Unit of measure</source>
        <translation>计量单位</translation>
    </message>
    <message>
        <source>Voice Feedback</source>
        <translation>语音反馈</translation>
    </message>
    <message>
        <source>Warn + assist</source>
        <translation>警告+辅助</translation>
    </message>
    <message>
        <source>Warning intensity</source>
        <translation>警告强度</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>cycle</source>
        <translation>循环</translation>
    </message>
    <message>
        <source>freed</source>
        <translation>已释放</translation>
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
        <translation>标准</translation>
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
        <translation>10分钟</translation>
    </message>
    <message>
        <source>15m</source>
        <translation>15分钟</translation>
    </message>
    <message>
        <source>15s</source>
        <translation>15s</translation>
    </message>
    <message>
        <source>1m</source>
        <translation>1分钟</translation>
    </message>
    <message>
        <source>2m</source>
        <translation>2分钟</translation>
    </message>
    <message>
        <source>30s</source>
        <translation>30s</translation>
    </message>
    <message>
        <source>3m</source>
        <translation>3分钟</translation>
    </message>
    <message>
        <source>5m</source>
        <translation>5分钟</translation>
    </message>
    <message>
        <source>60s</source>
        <translation>60s</translation>
    </message>
    <message>
        <source>After defrosting time</source>
        <translation>除霜后时间</translation>
    </message>
    <message>
        <source>Ambient light settings</source>
        <translation>氛围灯设置</translation>
    </message>
    <message>
        <source>Ambient temperature information</source>
        <translation>环境温度信息</translation>
    </message>
    <message>
        <source>Auto headlight sensitivity</source>
        <translation>自动大灯灵敏度</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Backlight adjustment</source>
        <translation>背光调节</translation>
    </message>
    <message>
        <source>Buzzer alarm</source>
        <translation>蜂鸣器报警</translation>
    </message>
    <message>
        <source>Enhanced parking assist</source>
        <translation>增强型泊车辅助</translation>
    </message>
    <message>
        <source>Flashes 1 time</source>
        <translation>闪烁1次</translation>
    </message>
    <message>
        <source>Flashes 3 time</source>
        <translation>闪烁3次</translation>
    </message>
    <message>
        <source>Indoor lamp time</source>
        <translation>室内灯时间</translation>
    </message>
    <message>
        <source>Information tone</source>
        <translation>信息提示音</translation>
    </message>
    <message>
        <source>Instrument arrow keys</source>
        <translation>仪表方向键</translation>
    </message>
    <message>
        <source>Intelligent unlocking</source>
        <translation>智能解锁</translation>
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
        <translation>手动</translation>
    </message>
    <message>
        <source>MileageUnit</source>
        <translation>里程单位</translation>
    </message>
    <message>
        <source>No amplification</source>
        <translation>不放大</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Oil life</source>
        <translation>机油寿命</translation>
    </message>
    <message>
        <source>Rain sensor</source>
        <translation>雨量传感器</translation>
    </message>
    <message>
        <source>Ramp start assist</source>
        <translation>坡道起步辅助</translation>
    </message>
    <message>
        <source>Rear view keep</source>
        <translation>后视保持</translation>
    </message>
    <message>
        <source>Rear view split screen</source>
        <translation>后视分屏</translation>
    </message>
    <message>
        <source>Rearview mirror folding mode</source>
        <translation>后视镜折叠模式</translation>
    </message>
    <message>
        <source>Remaining oil</source>
        <translation>剩余油量</translation>
    </message>
    <message>
        <source>Remote control car window</source>
        <translation>遥控车窗</translation>
    </message>
    <message>
        <source>Restricted</source>
        <translation>受限</translation>
    </message>
    <message>
        <source>Reversing video zoom</source>
        <translation>倒车影像放大</translation>
    </message>
    <message>
        <source>Speed lock</source>
        <translation>车速落锁</translation>
    </message>
    <message>
        <source>Stay with me home</source>
        <translation>伴我回家</translation>
    </message>
    <message>
        <source>Traction control system</source>
        <translation>牵引力控制系统</translation>
    </message>
    <message>
        <source>Turn signal  setting</source>
        <translation>转向灯设置</translation>
    </message>
    <message>
        <source>Warning tone</source>
        <translation>警告音</translation>
    </message>
    <message>
        <source>Welcome light duration</source>
        <translation>迎宾灯时长</translation>
    </message>
    <message>
        <source>Wireless charging</source>
        <translation>无线充电</translation>
    </message>
    <message>
        <source>Zoomed in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>charging indicator</source>
        <translation>充电指示</translation>
    </message>
    <message>
        <source>driven distance</source>
        <translation>行驶里程</translation>
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
        <translation>续航里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem48_9</name>
    <message>
        <source>Front left tire</source>
        <translation>左前轮胎</translation>
    </message>
    <message>
        <source>Front left tire pressure temperature</source>
        <translation>左前胎温</translation>
    </message>
    <message>
        <source>Front right tire</source>
        <translation>右前轮胎</translation>
    </message>
    <message>
        <source>Front right tire temperature</source>
        <translation>右前胎温</translation>
    </message>
    <message>
        <source>High voltage warning</source>
        <translation>高压警告</translation>
    </message>
    <message>
        <source>Left front tire pressure value</source>
        <translation>左前胎压值</translation>
    </message>
    <message>
        <source>Left rear tire pressure value</source>
        <translation>左后胎压值</translation>
    </message>
    <message>
        <source>Loss of signal</source>
        <translation>信号丢失</translation>
    </message>
    <message>
        <source>Low pressure warning</source>
        <translation>低压警告</translation>
    </message>
    <message>
        <source>Low pressure warning and quick leak</source>
        <translation>低压警告并快速漏气</translation>
    </message>
    <message>
        <source>Low sensor power</source>
        <translation>传感器电量低</translation>
    </message>
    <message>
        <source>Rapid leakage</source>
        <translation>快速漏气</translation>
    </message>
    <message>
        <source>Rear left tire</source>
        <translation>左后轮胎</translation>
    </message>
    <message>
        <source>Rear left tire temperature</source>
        <translation>左后胎温</translation>
    </message>
    <message>
        <source>Rear right tire</source>
        <translation>右后轮胎</translation>
    </message>
    <message>
        <source>Rear right tire temperature</source>
        <translation>右后胎温</translation>
    </message>
    <message>
        <source>Right front tire pressure value</source>
        <translation>右前胎压值</translation>
    </message>
    <message>
        <source>Right rear tire pressure value</source>
        <translation>右后胎压值</translation>
    </message>
    <message>
        <source>Sensor error</source>
        <translation>传感器错误</translation>
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
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem56_3</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>车窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>车窗-左后</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>车窗-右后</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>车窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem56_6</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6级</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左后车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右后车窗开闭</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗开闭</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
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
        <translation>可调充电SOC</translation>
    </message>
    <message>
        <source>Adjustable charging current</source>
        <translation>可调充电电流</translation>
    </message>
    <message>
        <source>End time</source>
        <translation>结束时间</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>The strength of energy recovery</source>
        <translation>能量回收强度</translation>
    </message>
    <message>
        <source>creep mode</source>
        <translation>蠕行模式</translation>
    </message>
    <message>
        <source>long battery life</source>
        <translation>延长电池寿命</translation>
    </message>
    <message>
        <source>long cruising range</source>
        <translation>长续航里程</translation>
    </message>
    <message>
        <source>make an appointment to charge:end time-minute</source>
        <translation>预约充电：结束时间-分</translation>
    </message>
    <message>
        <source>make an appointment to charge:end time-time</source>
        <translation>预约充电：结束时间-时</translation>
    </message>
    <message>
        <source>make an appointment to charge:start time-minute</source>
        <translation>预约充电：开始时间-分</translation>
    </message>
    <message>
        <source>make an appointment to charge:start time-time</source>
        <translation>预约充电：开始时间-时</translation>
    </message>
    <message>
        <source>powerful</source>
        <translation>强劲</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>start time</source>
        <translation>开始时间</translation>
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
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem64_3</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>车窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>车窗-左后</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>车窗-右后</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>车窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem64_4</name>
    <message>
        <source>recover</source>
        <translation>恢复</translation>
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
        <translation>360全景-前雷达自动激活</translation>
    </message>
    <message>
        <source>360 panorama-low speed turn signal automatic activation</source>
        <translation>360全景-低速转向灯自动激活</translation>
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
        <translation>空调类型</translation>
    </message>
    <message>
        <source>Air conditioning settings-air conditioning self drying</source>
        <translation>空调设置-空调自干燥</translation>
    </message>
    <message>
        <source>Air conditioning settings-air preconditioning</source>
        <translation>空调设置-空气预调节</translation>
    </message>
    <message>
        <source>Air conditioning settings-air purification system turns on automatically</source>
        <translation>空调设置-空气净化系统自动开启</translation>
    </message>
    <message>
        <source>Air conditioning settings-bluetooth calls to reduce fan speed</source>
        <translation>空调设置-蓝牙通话降低风速</translation>
    </message>
    <message>
        <source>Air conditioning settings-unlock active ventilation</source>
        <translation>空调设置-解锁主动通风</translation>
    </message>
    <message>
        <source>Air conditioning settings-unlock down window ventilation</source>
        <translation>空调设置-解锁降窗通风</translation>
    </message>
    <message>
        <source>Air preconditioning custom-AM</source>
        <translation>空气预调节自定义-上午</translation>
    </message>
    <message>
        <source>Air preconditioning custom-Night</source>
        <translation>空气预调节自定义-夜间</translation>
    </message>
    <message>
        <source>Air preconditioning custom-PM</source>
        <translation>空气预调节自定义-下午</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Body setting-secondary Lock</source>
        <translation>车身设置-二次上锁</translation>
    </message>
    <message>
        <source>Body settings-auto lock when flame out</source>
        <translation>车身设置-熄火自动落锁</translation>
    </message>
    <message>
        <source>Body settings-automatic drivingLock</source>
        <translation>车身设置-行车自动落锁</translation>
    </message>
    <message>
        <source>Body settings-automatic folding mirrors</source>
        <translation>车身设置-后视镜自动折叠</translation>
    </message>
    <message>
        <source>Body settings-driving mode memory</source>
        <translation>车身设置-驾驶模式记忆</translation>
    </message>
    <message>
        <source>Body settings-latch automatically close windows</source>
        <translation>车身设置-上锁自动关窗</translation>
    </message>
    <message>
        <source>Body settings-main driver door unlocked separately</source>
        <translation>车身设置-主驾车门单独解锁</translation>
    </message>
    <message>
        <source>Body settings-rain off sunroof settings</source>
        <translation>车身设置-雨天自动关天窗</translation>
    </message>
    <message>
        <source>Body settings-remote unlock</source>
        <translation>车身设置-遥控解锁</translation>
    </message>
    <message>
        <source>Body settings-side window light function</source>
        <translation>车身设置-侧窗灯光功能</translation>
    </message>
    <message>
        <source>Body settings-smart welcome</source>
        <translation>车身设置-智能迎宾</translation>
    </message>
    <message>
        <source>Body settings-unlock feedback method</source>
        <translation>车身设置-解锁反馈方式</translation>
    </message>
    <message>
        <source>Body settings-window delay time</source>
        <translation>车身设置-车窗延时时间</translation>
    </message>
    <message>
        <source>Body settings-window remote control</source>
        <translation>车身设置-车窗遥控</translation>
    </message>
    <message>
        <source>Body settings-wiper assist after reversing</source>
        <translation>车身设置-倒车后雨刮辅助</translation>
    </message>
    <message>
        <source>Body settings-wireless charging switch function</source>
        <translation>车身设置-无线充电开关功能</translation>
    </message>
    <message>
        <source>Body setup-electric horn sound</source>
        <translation>车身设置-电喇叭声音</translation>
    </message>
    <message>
        <source>Body setup-parking auto unlock</source>
        <translation>车身设置-驻车自动解锁</translation>
    </message>
    <message>
        <source>Breathable</source>
        <translation>透气</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Classic</source>
        <translation>经典</translation>
    </message>
    <message>
        <source>Comfort</source>
        <translation>舒适</translation>
    </message>
    <message>
        <source>Correction only</source>
        <translation>仅纠偏</translation>
    </message>
    <message>
        <source>Cruise control-integrated adaptive cruise</source>
        <translation>巡航控制-集成式自适应巡航</translation>
    </message>
    <message>
        <source>Cruise control-target beep</source>
        <translation>巡航控制-目标提示音</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Custom driving mode-Power mode</source>
        <translation>自定义驾驶模式-动力模式</translation>
    </message>
    <message>
        <source>Custom driving mode-steering mode</source>
        <translation>自定义驾驶模式-转向模式</translation>
    </message>
    <message>
        <source>Dim while driving</source>
        <translation>行车时调暗</translation>
    </message>
    <message>
        <source>Early warning + correction</source>
        <translation>预警+纠偏</translation>
    </message>
    <message>
        <source>Economy</source>
        <translation>经济</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>Front collision assist-front collision warning</source>
        <translation>前碰撞辅助-前碰撞预警</translation>
    </message>
    <message>
        <source>Front collision avoidance assist-automatic emergency braking</source>
        <translation>前碰撞避免辅助-自动紧急制动</translation>
    </message>
    <message>
        <source>Front collision avoidance assist-front collision alert sensitivity</source>
        <translation>前碰撞避免辅助-前碰撞预警灵敏度</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Identify only hints</source>
        <translation>仅识别提示</translation>
    </message>
    <message>
        <source>Instrument sound-alarm sound</source>
        <translation>仪表声音-报警音</translation>
    </message>
    <message>
        <source>Instrument sound-beep sound</source>
        <translation>仪表声音-提示音</translation>
    </message>
    <message>
        <source>Instrument sound-welcome sound</source>
        <translation>仪表声音-迎宾音</translation>
    </message>
    <message>
        <source>Lane assist speed warning bias</source>
        <translation>车道辅助超速报警偏差</translation>
    </message>
    <message>
        <source>Lane assist-early warning mode</source>
        <translation>车道辅助-预警方式</translation>
    </message>
    <message>
        <source>Lane assist-function selection</source>
        <translation>车道辅助-功能选择</translation>
    </message>
    <message>
        <source>Lane assist-sensitivity</source>
        <translation>车道辅助-灵敏度</translation>
    </message>
    <message>
        <source>Lane assist-speed limit sign recognition</source>
        <translation>车道辅助-限速标志识别</translation>
    </message>
    <message>
        <source>Lane assist-speed warning</source>
        <translation>车道辅助-超速报警</translation>
    </message>
    <message>
        <source>Lane assist-speed warning sound</source>
        <translation>车道辅助-超速报警音</translation>
    </message>
    <message>
        <source>Lane assist-vibration intensity</source>
        <translation>车道辅助-振动强度</translation>
    </message>
    <message>
        <source>Light settings-auto high beam</source>
        <translation>灯光设置-自动远光灯</translation>
    </message>
    <message>
        <source>Light setup-headlight delay</source>
        <translation>灯光设置-大灯延时</translation>
    </message>
    <message>
        <source>Light setup-rechargeable breathing light</source>
        <translation>灯光设置-充电呼吸灯</translation>
    </message>
    <message>
        <source>Lighting settings-ambient light brightness</source>
        <translation>灯光设置-氛围灯亮度</translation>
    </message>
    <message>
        <source>Lighting settings-ambient light brightness switch</source>
        <translation>灯光设置-氛围灯亮度开关</translation>
    </message>
    <message>
        <source>Lighting settings-ambient light color</source>
        <translation>灯光设置-氛围灯颜色</translation>
    </message>
    <message>
        <source>Lighting settings-ambient light music follow up function</source>
        <translation>灯光设置-氛围灯随音乐律动</translation>
    </message>
    <message>
        <source>Lighting settings-ambient lighting function</source>
        <translation>灯光设置-氛围灯功能</translation>
    </message>
    <message>
        <source>Lighting settings-automatic adjustment of ambient light</source>
        <translation>灯光设置-氛围灯自动调节</translation>
    </message>
    <message>
        <source>Lighting settings-automatic adjustment of ambient lighting</source>
        <translation>灯光设置-氛围照明自动调节</translation>
    </message>
    <message>
        <source>Lighting settings-one button steering</source>
        <translation>灯光设置-一触多闪</translation>
    </message>
    <message>
        <source>Lighting setup-daytime running lights</source>
        <translation>灯光设置-日间行车灯</translation>
    </message>
    <message>
        <source>Meter sound-volume level</source>
        <translation>仪表声音-音量等级</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
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
        <translation>快捷控制-车窗</translation>
    </message>
    <message>
        <source>Quick controls-driving mode</source>
        <translation>快捷控制-驾驶模式</translation>
    </message>
    <message>
        <source>Rear warning-parallel assist</source>
        <translation>后方预警-并线辅助</translation>
    </message>
    <message>
        <source>Rear warning-rear end warning</source>
        <translation>后方预警-追尾预警</translation>
    </message>
    <message>
        <source>Rear warning-rear rear end warning sound</source>
        <translation>后方预警-后方追尾预警音</translation>
    </message>
    <message>
        <source>Rear warning-reversing lateral warning</source>
        <translation>后方预警-倒车侧向预警</translation>
    </message>
    <message>
        <source>Recognition and disappearance are prompted</source>
        <translation>识别与消失均提示</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>Right blind spot image-front radar automatic activation</source>
        <translation>右侧盲区影像-前雷达自动激活</translation>
    </message>
    <message>
        <source>Right blind spot image-turn signal automatic activation</source>
        <translation>右侧盲区影像-转向灯自动激活</translation>
    </message>
    <message>
        <source>Royal Blue</source>
        <translation>宝蓝色</translation>
    </message>
    <message>
        <source>Sport</source>
        <translation>运动</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>运动</translation>
    </message>
    <message>
        <source>Sunroof settings-rain sensing sunroof</source>
        <translation>天窗设置-雨量感应天窗</translation>
    </message>
    <message>
        <source>Sunroof settings-remote control sunroof</source>
        <translation>天窗设置-遥控天窗</translation>
    </message>
    <message>
        <source>Sunroof settings-voice activated sunroof</source>
        <translation>天窗设置-语音控制天窗</translation>
    </message>
    <message>
        <source>System settings-language</source>
        <translation>系统设置-语言</translation>
    </message>
    <message>
        <source>System settings-meter theme</source>
        <translation>系统设置-仪表主题</translation>
    </message>
    <message>
        <source>Technology</source>
        <translation>科技</translation>
    </message>
    <message>
        <source>Warning only</source>
        <translation>仅警告</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>all doors</source>
        <translation>所有车门</translation>
    </message>
    <message>
        <source>automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>car search</source>
        <translation>寻车</translation>
    </message>
    <message>
        <source>car search and door unlocked</source>
        <translation>寻车并解锁车门</translation>
    </message>
    <message>
        <source>closed while driving</source>
        <translation>行车时关闭</translation>
    </message>
    <message>
        <source>default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>door not closed</source>
        <translation>车门未关</translation>
    </message>
    <message>
        <source>driving door</source>
        <translation>驾驶员车门</translation>
    </message>
    <message>
        <source>high</source>
        <translation>高</translation>
    </message>
    <message>
        <source>just disappear the prompt</source>
        <translation>仅消失时提示</translation>
    </message>
    <message>
        <source>light + sound</source>
        <translation>灯光+声音</translation>
    </message>
    <message>
        <source>light only</source>
        <translation>仅灯光</translation>
    </message>
    <message>
        <source>manual</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>middle</source>
        <translation>中</translation>
    </message>
    <message>
        <source>portable</source>
        <translation>轻便</translation>
    </message>
    <message>
        <source>restore vehicle settings</source>
        <translation>恢复车辆设置</translation>
    </message>
    <message>
        <source>sound</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>sound + vibration</source>
        <translation>声音+振动</translation>
    </message>
    <message>
        <source>sound 1</source>
        <translation>声音1</translation>
    </message>
    <message>
        <source>sound 2</source>
        <translation>声音2</translation>
    </message>
    <message>
        <source>sound 3</source>
        <translation>声音3</translation>
    </message>
    <message>
        <source>sound only</source>
        <translation>仅声音</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>vibrate</source>
        <translation>振动</translation>
    </message>
</context>
<context>
    <name>CarInfoItem64_5</name>
    <message>
        <source>reset</source>
        <translation>复位</translation>
    </message>
    <message>
        <source>Front left tire pressure temperature</source>
        <translation>左前胎温</translation>
    </message>
    <message>
        <source>Front left tire warning-Sensor battery low</source>
        <translation>左前轮胎警告-传感器电量低</translation>
    </message>
    <message>
        <source>Front left tire warning-fast leak</source>
        <translation>左前轮胎警告-快速漏气</translation>
    </message>
    <message>
        <source>Front left tire warning-high pressure warning</source>
        <translation>左前轮胎警告-高压警告</translation>
    </message>
    <message>
        <source>Front left tire warning-low pressure warning</source>
        <translation>左前轮胎警告-低压警告</translation>
    </message>
    <message>
        <source>Front left tire warning-sensor failure</source>
        <translation>左前轮胎警告-传感器故障</translation>
    </message>
    <message>
        <source>Front left tire warning-sensor missing</source>
        <translation>左前轮胎警告-传感器丢失</translation>
    </message>
    <message>
        <source>Front left tire warning-system error</source>
        <translation>左前轮胎警告-系统错误</translation>
    </message>
    <message>
        <source>Front left tire warning-temperature alert</source>
        <translation>左前轮胎警告-温度警告</translation>
    </message>
    <message>
        <source>Front right tire temperature</source>
        <translation>右前胎温</translation>
    </message>
    <message>
        <source>Front right tire warning-fast leak</source>
        <translation>右前轮胎警告-快速漏气</translation>
    </message>
    <message>
        <source>Front right tire warning-high pressure warning</source>
        <translation>右前轮胎警告-高压警告</translation>
    </message>
    <message>
        <source>Front right tire warning-low pressure warning</source>
        <translation>右前轮胎警告-低压警告</translation>
    </message>
    <message>
        <source>Front right tire warning-sensor batteryLow</source>
        <translation>右前轮胎警告-传感器电量低</translation>
    </message>
    <message>
        <source>Front right tire warning-sensor failure</source>
        <translation>右前轮胎警告-传感器故障</translation>
    </message>
    <message>
        <source>Front right tire warning-sensor missing</source>
        <translation>右前轮胎警告-传感器丢失</translation>
    </message>
    <message>
        <source>Front right tire warning-system Error</source>
        <translation>右前轮胎警告-系统错误</translation>
    </message>
    <message>
        <source>Front right tire warning-temperature alert</source>
        <translation>右前轮胎警告-温度警告</translation>
    </message>
    <message>
        <source>Left front tire pressure value</source>
        <translation>左前胎压值</translation>
    </message>
    <message>
        <source>Left rear tire pressure value</source>
        <translation>左后胎压值</translation>
    </message>
    <message>
        <source>Rear left tire temperature</source>
        <translation>左后胎温</translation>
    </message>
    <message>
        <source>Rear left tire warning-Sensor battery low</source>
        <translation>左后轮胎警告-传感器电量低</translation>
    </message>
    <message>
        <source>Rear left tire warning-fast leak</source>
        <translation>左后轮胎警告-快速漏气</translation>
    </message>
    <message>
        <source>Rear left tire warning-high pressure warning</source>
        <translation>左后轮胎警告-高压警告</translation>
    </message>
    <message>
        <source>Rear left tire warning-low pressure warning</source>
        <translation>左后轮胎警告-低压警告</translation>
    </message>
    <message>
        <source>Rear left tire warning-sensor failure</source>
        <translation>左后轮胎警告-传感器故障</translation>
    </message>
    <message>
        <source>Rear left tire warning-sensor missing</source>
        <translation>左后轮胎警告-传感器丢失</translation>
    </message>
    <message>
        <source>Rear left tire warning-system error</source>
        <translation>左后轮胎警告-系统错误</translation>
    </message>
    <message>
        <source>Rear left tire warning-temperature alert</source>
        <translation>左后轮胎警告-温度警告</translation>
    </message>
    <message>
        <source>Rear right tire temperature</source>
        <translation>右后胎温</translation>
    </message>
    <message>
        <source>Rear right tire warning-Sensor battery low</source>
        <translation>右后轮胎警告-传感器电量低</translation>
    </message>
    <message>
        <source>Rear right tire warning-fast leak</source>
        <translation>右后轮胎警告-快速漏气</translation>
    </message>
    <message>
        <source>Rear right tire warning-high pressure warning</source>
        <translation>右后轮胎警告-高压警告</translation>
    </message>
    <message>
        <source>Rear right tire warning-low pressure warning</source>
        <translation>右后轮胎警告-低压警告</translation>
    </message>
    <message>
        <source>Rear right tire warning-sensor failure</source>
        <translation>右后轮胎警告-传感器故障</translation>
    </message>
    <message>
        <source>Rear right tire warning-sensor missing</source>
        <translation>右后轮胎警告-传感器丢失</translation>
    </message>
    <message>
        <source>Rear right tire warning-system error</source>
        <translation>右后轮胎警告-系统错误</translation>
    </message>
    <message>
        <source>Rear right tire warning-temperature alert</source>
        <translation>右后轮胎警告-温度警告</translation>
    </message>
    <message>
        <source>Right front tire pressure value</source>
        <translation>右前胎压值</translation>
    </message>
    <message>
        <source>Right rear tire pressure value</source>
        <translation>右后胎压值</translation>
    </message>
    <message>
        <source>Tire pressure reset settings</source>
        <translation>胎压复位设置</translation>
    </message>
    <message>
        <source>have</source>
        <translation>有</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>CarInfoItem64_6</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左后车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右后车窗开闭</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗开闭</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem64_7</name>
    <message>
        <source>17 Changan CX70</source>
        <translation>17款长安CX70</translation>
    </message>
    <message>
        <source>18 Changan Auchan A600/20 Changan Auchan Changxing</source>
        <translation>18款长安欧尚A600/20款长安欧尚长行</translation>
    </message>
    <message>
        <source>18 Changan Auchan Kesai/21 Changan Auchan Kesai Pro</source>
        <translation>18款长安欧尚科赛/21款长安欧尚科赛Pro</translation>
    </message>
    <message>
        <source>18 Changan CS75/20 Changan CS75</source>
        <translation>18款长安CS75/20款长安CS75</translation>
    </message>
    <message>
        <source>18 Changan Lingxuan</source>
        <translation>18款长安凌轩</translation>
    </message>
    <message>
        <source>18 Changan Yidong DT</source>
        <translation>18款长安逸动DT</translation>
    </message>
    <message>
        <source>19 Changan Auchan Still</source>
        <translation>19款长安欧尚Still</translation>
    </message>
    <message>
        <source>19 Changan CS15</source>
        <translation>19款长安CS15</translation>
    </message>
    <message>
        <source>19 Changan CS35 PLUS</source>
        <translation>19款长安CS35 PLUS</translation>
    </message>
    <message>
        <source>19 Changan Yidong</source>
        <translation>19款长安逸动</translation>
    </message>
    <message>
        <source>19 Changan Yuexiang</source>
        <translation>19款长安悦翔</translation>
    </message>
    <message>
        <source>19 models of Changan Yuexiang low-end</source>
        <translation>19款长安悦翔低配</translation>
    </message>
    <message>
        <source>20 Changan Auchan X7</source>
        <translation>20款长安欧尚X7</translation>
    </message>
    <message>
        <source>21 models of Changan CS15 E-Pro</source>
        <translation>21款长安CS15 E-Pro</translation>
    </message>
    <message>
        <source>Backlight level information</source>
        <translation>背光等级信息</translation>
    </message>
    <message>
        <source>Changan Auchan X70A</source>
        <translation>长安欧尚X70A</translation>
    </message>
    <message>
        <source>Highlight</source>
        <translation>高亮</translation>
    </message>
    <message>
        <source>Inclined parking UI highlighted</source>
        <translation>斜列车位界面高亮</translation>
    </message>
    <message>
        <source>Model selection</source>
        <translation>车型选择</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Parallel parking UI highlighted</source>
        <translation>平行车位界面高亮</translation>
    </message>
    <message>
        <source>Parking out UI highlighted</source>
        <translation>泊出界面高亮</translation>
    </message>
    <message>
        <source>Remaining maintenance mileage</source>
        <translation>剩余保养里程</translation>
    </message>
    <message>
        <source>UI interface</source>
        <translation>UI界面</translation>
    </message>
    <message>
        <source>Vertical parking UI highlighted</source>
        <translation>垂直车位界面高亮</translation>
    </message>
    <message>
        <source>null</source>
        <translation>无</translation>
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
        <translation>后视画面</translation>
    </message>
    <message>
        <source>Back video 120° view</source>
        <translation>后视画面120°视角</translation>
    </message>
    <message>
        <source>Back video 180° view</source>
        <translation>后视画面180°视角</translation>
    </message>
    <message>
        <source>Disable auxiliary line</source>
        <translation>禁用辅助线</translation>
    </message>
    <message>
        <source>Front video</source>
        <translation>前视画面</translation>
    </message>
    <message>
        <source>Front video 120° view</source>
        <translation>前视画面120°视角</translation>
    </message>
    <message>
        <source>Front video 180° view</source>
        <translation>前视画面180°视角</translation>
    </message>
    <message>
        <source>Invalid</source>
        <translation>无效</translation>
    </message>
    <message>
        <source>Left and right video</source>
        <translation>左右画面</translation>
    </message>
    <message>
        <source>Left video</source>
        <translation>左视画面</translation>
    </message>
    <message>
        <source>Normal mode</source>
        <translation>正常模式</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Panoramic Video</source>
        <translation>全景视频</translation>
    </message>
    <message>
        <source>Parallel mode</source>
        <translation>平行模式</translation>
    </message>
    <message>
        <source>Parking track mode</source>
        <translation>泊车轨迹模式</translation>
    </message>
    <message>
        <source>Right video</source>
        <translation>右视画面</translation>
    </message>
    <message>
        <source>null</source>
        <translation>无</translation>
    </message>
    <message>
        <source>right Video</source>
        <translation>右视画面</translation>
    </message>
    <message>
        <source>video Status</source>
        <translation>画面状态</translation>
    </message>
</context>
<context>
    <name>CarInfoItem65_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem65_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>车窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>车窗-左后</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>车窗-右后</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>车窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem65_3</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6级</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左后车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右后车窗开闭</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗开闭</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_10</name>
    <message>
        <source>Air conditioning system-air recirculation(activated after using glass water)</source>
        <translation>空调系统-空气内循环（使用玻璃水后启用）</translation>
    </message>
    <message>
        <source>Air conditioning system-automatic temperature adjustment and cycle control</source>
        <translation>空调系统-自动温度调节与循环控制</translation>
    </message>
    <message>
        <source>Baltic Sea Blue</source>
        <translation>波罗的海蓝</translation>
    </message>
    <message>
        <source>Barcelona Red</source>
        <translation>巴塞罗那红</translation>
    </message>
    <message>
        <source>Brightness level 1</source>
        <translation>亮度1级</translation>
    </message>
    <message>
        <source>Brightness level 2</source>
        <translation>亮度2级</translation>
    </message>
    <message>
        <source>Brightness level 3</source>
        <translation>亮度3级</translation>
    </message>
    <message>
        <source>Brightness level 4</source>
        <translation>亮度4级</translation>
    </message>
    <message>
        <source>Coffee</source>
        <translation>咖啡色</translation>
    </message>
    <message>
        <source>Colorful Clouds</source>
        <translation>七彩祥云</translation>
    </message>
    <message>
        <source>Desert Gold</source>
        <translation>沙漠金</translation>
    </message>
    <message>
        <source>Hey! Yo!</source>
        <translation>嘿！哟！</translation>
    </message>
    <message>
        <source>Midnight City</source>
        <translation>午夜都市</translation>
    </message>
    <message>
        <source>Monochrome lights</source>
        <translation>单色灯</translation>
    </message>
    <message>
        <source>Norwegian Forest Green</source>
        <translation>挪威森林绿</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Party theme</source>
        <translation>派对主题</translation>
    </message>
    <message>
        <source>Provence Violet</source>
        <translation>普罗旺斯紫</translation>
    </message>
    <message>
        <source>Rear camera-keep the rear camera on</source>
        <translation>后摄像头-保持后摄像头开启</translation>
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
        <translation>座椅加热通风-自动舒适控制</translation>
    </message>
    <message>
        <source>Seat-seat position change tips</source>
        <translation>座椅-座椅位置变化提示</translation>
    </message>
    <message>
        <source>Seat-third row right seat back fold</source>
        <translation>座椅-第三排右侧靠背折叠</translation>
    </message>
    <message>
        <source>Seats-third row left seat back fold</source>
        <translation>座椅-第三排左侧靠背折叠</translation>
    </message>
    <message>
        <source>Sound ambient light-ambient light</source>
        <translation>音乐氛围灯-氛围灯</translation>
    </message>
    <message>
        <source>Sound ambient light-brightness</source>
        <translation>音乐氛围灯-亮度</translation>
    </message>
    <message>
        <source>Sound ambient light-monochromatic light(On)</source>
        <translation>音乐氛围灯-单色灯（开）</translation>
    </message>
    <message>
        <source>Sound ambient light-music+</source>
        <translation>音乐氛围灯-音乐+</translation>
    </message>
    <message>
        <source>Sound ambient light-theme color(On)</source>
        <translation>音乐氛围灯-主题色（开）</translation>
    </message>
    <message>
        <source>Steering wheel heater-automatic comfort control</source>
        <translation>方向盘加热-自动舒适控制</translation>
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
        <translation>盲区监测</translation>
    </message>
    <message>
        <source>expand</source>
        <translation>展开</translation>
    </message>
    <message>
        <source>fold</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>null</source>
        <translation>无</translation>
    </message>
    <message>
        <source>theme color</source>
        <translation>主题色</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_11</name>
    <message>
        <source>All Views</source>
        <translation>所有视图</translation>
    </message>
    <message>
        <source>All views</source>
        <translation>所有视图</translation>
    </message>
    <message>
        <source>Back + Left Back</source>
        <translation>后视+左后视</translation>
    </message>
    <message>
        <source>Back + Right Back</source>
        <translation>后视+右后视</translation>
    </message>
    <message>
        <source>Back Only</source>
        <translation>仅后视</translation>
    </message>
    <message>
        <source>Back view + Down view</source>
        <translation>后视+俯视</translation>
    </message>
    <message>
        <source>Back view + Left view</source>
        <translation>后视+左视</translation>
    </message>
    <message>
        <source>Back view + Right view</source>
        <translation>后视+右视</translation>
    </message>
    <message>
        <source>Backward Only (in Forward Mode)</source>
        <translation>仅后视（前进模式）</translation>
    </message>
    <message>
        <source>Backward Only View (in backward mode)</source>
        <translation>仅后视（倒车模式）</translation>
    </message>
    <message>
        <source>Before and after image status</source>
        <translation>前后影像状态</translation>
    </message>
    <message>
        <source>Current is backward view</source>
        <translation>当前为后视</translation>
    </message>
    <message>
        <source>Current is forward view</source>
        <translation>当前为前视</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>进入</translation>
    </message>
    <message>
        <source>Exit Panorama</source>
        <translation>退出全景</translation>
    </message>
    <message>
        <source>Forward + Left</source>
        <translation>前视+左视</translation>
    </message>
    <message>
        <source>Forward + Right</source>
        <translation>前视+右视</translation>
    </message>
    <message>
        <source>Forward Only</source>
        <translation>仅前视</translation>
    </message>
    <message>
        <source>Front + Front left</source>
        <translation>前视+左前视</translation>
    </message>
    <message>
        <source>Front + Front right</source>
        <translation>前视+右前视</translation>
    </message>
    <message>
        <source>Front camera only</source>
        <translation>仅前摄像头</translation>
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
        <translation>关</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Panorama + Backward</source>
        <translation>全景+后视</translation>
    </message>
    <message>
        <source>Panorama + Forward</source>
        <translation>全景+前视</translation>
    </message>
    <message>
        <source>Panoramic image status</source>
        <translation>全景影像状态</translation>
    </message>
    <message>
        <source>Parking distance warning</source>
        <translation>泊车距离警告</translation>
    </message>
    <message>
        <source>Rear camera-enter and exit</source>
        <translation>后摄像头-进入与退出</translation>
    </message>
    <message>
        <source>Rear samera-image status</source>
        <translation>后摄像头-影像状态</translation>
    </message>
    <message>
        <source>Rear view parking guidance</source>
        <translation>后视泊车引导</translation>
    </message>
    <message>
        <source>front view mode</source>
        <translation>前视模式</translation>
    </message>
    <message>
        <source>no image</source>
        <translation>无影像</translation>
    </message>
    <message>
        <source>null</source>
        <translation>无</translation>
    </message>
    <message>
        <source>quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>rear view mode</source>
        <translation>后视模式</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_12</name>
    <message>
        <source>Front left sensor fault status</source>
        <translation>左前传感器故障状态</translation>
    </message>
    <message>
        <source>Front left tire-airLeak detection</source>
        <translation>左前轮胎-漏气检测</translation>
    </message>
    <message>
        <source>Front left tire-battery status</source>
        <translation>左前轮胎-电池状态</translation>
    </message>
    <message>
        <source>Front left tire-sensor pressure status</source>
        <translation>左前轮胎-传感器压力状态</translation>
    </message>
    <message>
        <source>Front left tire-sensor temperature status</source>
        <translation>左前轮胎-传感器温度状态</translation>
    </message>
    <message>
        <source>Front right sensor fault status</source>
        <translation>右前传感器故障状态</translation>
    </message>
    <message>
        <source>Left front tire pressure value</source>
        <translation>左前胎压值</translation>
    </message>
    <message>
        <source>Left rear tire pressure value</source>
        <translation>左后胎压值</translation>
    </message>
    <message>
        <source>No air leakage</source>
        <translation>无漏气</translation>
    </message>
    <message>
        <source>No trouble</source>
        <translation>无故障</translation>
    </message>
    <message>
        <source>Rear left sensor fault status</source>
        <translation>左后传感器故障状态</translation>
    </message>
    <message>
        <source>Rear right sensor fault status</source>
        <translation>右后传感器故障状态</translation>
    </message>
    <message>
        <source>Right front tire pressure value</source>
        <translation>右前胎压值</translation>
    </message>
    <message>
        <source>Right rear tire pressure value</source>
        <translation>右后胎压值</translation>
    </message>
    <message>
        <source>Severely high</source>
        <translation>严重偏高</translation>
    </message>
    <message>
        <source>Severely low</source>
        <translation>严重偏低</translation>
    </message>
    <message>
        <source>Temperature-back left</source>
        <translation>温度-左后</translation>
    </message>
    <message>
        <source>Temperature-back right</source>
        <translation>温度-右后</translation>
    </message>
    <message>
        <source>Temperature-front reft</source>
        <translation>温度-左前</translation>
    </message>
    <message>
        <source>Temperature-front right</source>
        <translation>温度-右前</translation>
    </message>
    <message>
        <source>air leak</source>
        <translation>漏气</translation>
    </message>
    <message>
        <source>battery is normal</source>
        <translation>电池正常</translation>
    </message>
    <message>
        <source>battery is too low</source>
        <translation>电池电量过低</translation>
    </message>
    <message>
        <source>front right tire--battery status</source>
        <translation>右前轮胎-电池状态</translation>
    </message>
    <message>
        <source>front right tire-air leak detection</source>
        <translation>右前轮胎-漏气检测</translation>
    </message>
    <message>
        <source>front right tire-sensor pressure status</source>
        <translation>右前轮胎-传感器压力状态</translation>
    </message>
    <message>
        <source>front right tire-sensor temperature status</source>
        <translation>右前轮胎-传感器温度状态</translation>
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
        <translation>左后轮胎-漏气检测</translation>
    </message>
    <message>
        <source>rear left tire-battery status</source>
        <translation>左后轮胎-电池状态</translation>
    </message>
    <message>
        <source>rear left tire-sensor pressure status</source>
        <translation>左后轮胎-传感器压力状态</translation>
    </message>
    <message>
        <source>rear left tire-sensor temperature status</source>
        <translation>左后轮胎-传感器温度状态</translation>
    </message>
    <message>
        <source>rear right tire-air leak detection</source>
        <translation>右后轮胎-漏气检测</translation>
    </message>
    <message>
        <source>rear right tire-battery status</source>
        <translation>右后轮胎-电池状态</translation>
    </message>
    <message>
        <source>rear right tire-sensor pressure status</source>
        <translation>右后轮胎-传感器压力状态</translation>
    </message>
    <message>
        <source>rear right tire-sensor temperature status</source>
        <translation>右后轮胎-传感器温度状态</translation>
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
        <translation>背光调节</translation>
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
        <translation>指南针信息-方位</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>Hybrid</source>
        <translation>混动</translation>
    </message>
    <message>
        <source>Hybrid/Electric Vehicles</source>
        <translation>混动/电动车型</translation>
    </message>
    <message>
        <source>Model selection</source>
        <translation>车型选择</translation>
    </message>
    <message>
        <source>Non-hybrid/electric models</source>
        <translation>非混动/电动车型</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Outside temperature information</source>
        <translation>车外温度信息</translation>
    </message>
    <message>
        <source>Seat seat down</source>
        <translation>座椅坐垫向下</translation>
    </message>
    <message>
        <source>Seat-seat back</source>
        <translation>座椅-座椅向后</translation>
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
        <translation>语言设置</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>车窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>车窗-左后</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>车窗-右后</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>车窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_3</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6级</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左后车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右后车窗开闭</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗开闭</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
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
        <translation>音量调节</translation>
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
        <translation>前后平衡</translation>
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
        <translation>舒适</translation>
    </message>
    <message>
        <source>COMFORT mode</source>
        <translation>舒适模式</translation>
    </message>
    <message>
        <source>COMFORT mode-air conditioning control</source>
        <translation>舒适模式-空调控制</translation>
    </message>
    <message>
        <source>COMFORT mode-coasting energy regeneration</source>
        <translation>舒适模式-滑行能量回收</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Driving mode information</source>
        <translation>驾驶模式信息</translation>
    </message>
    <message>
        <source>ECO</source>
        <translation>ECO</translation>
    </message>
    <message>
        <source>ECO energy saving-CO2 emission reduction(CO2 emission reduction)</source>
        <translation>ECO节能-CO2减排（CO2减排量）</translation>
    </message>
    <message>
        <source>ECO energy saving-CO2 emission reduction(travel distance)</source>
        <translation>ECO节能-CO2减排（行驶里程）</translation>
    </message>
    <message>
        <source>ECO mode</source>
        <translation>ECO模式</translation>
    </message>
    <message>
        <source>ECO mode-air Conditioning control</source>
        <translation>ECO模式-空调控制</translation>
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
        <translation>1级</translation>
    </message>
    <message>
        <source>Grade 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Grade 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>SMART</source>
        <translation>智能</translation>
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
        <translation>SPORT模式-空调控制</translation>
    </message>
    <message>
        <source>SPORT mode-coasting Energy regeneration</source>
        <translation>SPORT模式-滑行能量回收</translation>
    </message>
    <message>
        <source>Sure</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Vehicle settings-drive mode reset</source>
        <translation>车辆设置-驾驶模式复位</translation>
    </message>
    <message>
        <source>driving mode</source>
        <translation>驾驶模式</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>标准</translation>
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
        <translation>充电设置-充电量（普通）-电量百分比</translation>
    </message>
    <message>
        <source>Charging settings-set the aamount of charge(full)-approximate mileage</source>
        <translation>充电设置-设置充电量（充满）-大约里程</translation>
    </message>
    <message>
        <source>Charging settings-set the aamount of charge(full)-battery percentage</source>
        <translation>充电设置-充电量（充满）-电量百分比</translation>
    </message>
    <message>
        <source>Charging settings-set the aamount of charge(normal)-approximate mileage</source>
        <translation>充电设置-设置充电量（普通）-大约里程</translation>
    </message>
    <message>
        <source>Estimated charging time(fast charging)</source>
        <translation>预计充电时间（快充）</translation>
    </message>
    <message>
        <source>Power consumption-instant consumption(air conditioning system)</source>
        <translation>电耗-瞬时电耗（空调系统）</translation>
    </message>
    <message>
        <source>Power consumption-instant consumption(battery care)</source>
        <translation>电耗-瞬时电耗（电池养护）</translation>
    </message>
    <message>
        <source>Power consumption-instant consumption(electronic equipment)</source>
        <translation>电耗-瞬时电耗（电子设备）</translation>
    </message>
    <message>
        <source>Power consumption-instant consumption(legacy system)</source>
        <translation>电耗-瞬时电耗（其他系统）</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_7</name>
    <message>
        <source>Energy flowchart UI</source>
        <translation>能量流程图界面</translation>
    </message>
    <message>
        <source>Estimated charging time-cradle charging</source>
        <translation>预计充电时间-充电桩充电</translation>
    </message>
    <message>
        <source>Estimated charging time-portable charging</source>
        <translation>预计充电时间-便携式充电</translation>
    </message>
    <message>
        <source>UI0 Hybrid Mode</source>
        <translation>UI0 混动模式</translation>
    </message>
    <message>
        <source>UI1 Idle Mode</source>
        <translation>UI1 怠速模式</translation>
    </message>
    <message>
        <source>UI10 is charging</source>
        <translation>UI10 充电中</translation>
    </message>
    <message>
        <source>UI11 is charging</source>
        <translation>UI11 充电中</translation>
    </message>
    <message>
        <source>UI2 Motor Running</source>
        <translation>UI2 电机运行</translation>
    </message>
    <message>
        <source>UI3 Hybrid Mode</source>
        <translation>UI3 混动模式</translation>
    </message>
    <message>
        <source>UI4 Engine Running</source>
        <translation>UI4 发动机运行</translation>
    </message>
    <message>
        <source>UI5 Charging</source>
        <translation>UI5 充电</translation>
    </message>
    <message>
        <source>UI6 Charging</source>
        <translation>UI6 充电</translation>
    </message>
    <message>
        <source>UI7 Transmitter Braking</source>
        <translation>UI7 发电机制动</translation>
    </message>
    <message>
        <source>UI8 Charging</source>
        <translation>UI8 充电</translation>
    </message>
    <message>
        <source>UI9 is charging</source>
        <translation>UI9 充电中</translation>
    </message>
    <message>
        <source>battery percentage</source>
        <translation>电量百分比</translation>
    </message>
    <message>
        <source>battery power</source>
        <translation>电池电量</translation>
    </message>
    <message>
        <source>electricity</source>
        <translation>电能</translation>
    </message>
    <message>
        <source>gasoline</source>
        <translation>汽油</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_8</name>
    <message>
        <source>reset</source>
        <translation>复位</translation>
    </message>
    <message>
        <source>ECO level</source>
        <translation>ECO等级</translation>
    </message>
    <message>
        <source>Energy consumption record</source>
        <translation>能耗记录</translation>
    </message>
    <message>
        <source>Energy information: initialization</source>
        <translation>能量信息：初始化</translation>
    </message>
    <message>
        <source>Hybrid fuel consumption</source>
        <translation>混动油耗</translation>
    </message>
    <message>
        <source>Motor energy consumption</source>
        <translation>电机能耗</translation>
    </message>
    <message>
        <source>average energy consumption</source>
        <translation>平均能耗</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem67_9</name>
    <message>
        <source>Appointment time-repeat(Friday)</source>
        <translation>预约时间-重复（星期五）</translation>
    </message>
    <message>
        <source>Appointment time-repeat(Monday)</source>
        <translation>预约时间-重复（星期一）</translation>
    </message>
    <message>
        <source>Appointment time-repeat(Saturday)</source>
        <translation>预约时间-重复（星期六）</translation>
    </message>
    <message>
        <source>Appointment time-repeat(Sunday)</source>
        <translation>预约时间-重复（星期日）</translation>
    </message>
    <message>
        <source>Appointment time-repeat(Thursday)</source>
        <translation>预约时间-重复（星期四）</translation>
    </message>
    <message>
        <source>Appointment time-repeat(Tuesday)</source>
        <translation>预约时间-重复（星期二）</translation>
    </message>
    <message>
        <source>Appointment time-repeat(Wednesday)</source>
        <translation>预约时间-重复（星期三）</translation>
    </message>
    <message>
        <source>Appointment time-start time(hour)</source>
        <translation>预约时间-开始时间（时）</translation>
    </message>
    <message>
        <source>Appointment time-start time(minute)</source>
        <translation>预约时间-开始时间（分）</translation>
    </message>
    <message>
        <source>Appointment time_end time(hour)</source>
        <translation>预约时间-结束时间（时）</translation>
    </message>
    <message>
        <source>Appointment time_end time(minute)</source>
        <translation>预约时间-结束时间（分）</translation>
    </message>
    <message>
        <source>Charge only during discounted time</source>
        <translation>仅在优惠时段充电</translation>
    </message>
    <message>
        <source>Charging current-defrost before scheduling an air conditionere</source>
        <translation>充电电流-预约空调前除霜</translation>
    </message>
    <message>
        <source>Charging current-discounted time charging</source>
        <translation>充电电流-优惠时段充电</translation>
    </message>
    <message>
        <source>Charging current-reservation air conditioning temperature</source>
        <translation>充电电流-预约空调温度</translation>
    </message>
    <message>
        <source>Charging current-reservation air conditioning temperature switch</source>
        <translation>充电电流-预约空调温度开关</translation>
    </message>
    <message>
        <source>Charging current-reserve charging time</source>
        <translation>充电电流-预约充电时间</translation>
    </message>
    <message>
        <source>Charging current-set normal charge current(portable)</source>
        <translation>充电电流-设置普通充电电流（便携式）</translation>
    </message>
    <message>
        <source>Charging current-set the normal charging current(charging pile)</source>
        <translation>充电电流-设置普通充电电流（充电桩）</translation>
    </message>
    <message>
        <source>Charging settings-scheduled charging time-end time(hour)</source>
        <translation>充电设置-预约充电时间-结束时间（时）</translation>
    </message>
    <message>
        <source>Charging settings-scheduled charging time-end time(minute)</source>
        <translation>充电设置-预约充电时间-结束时间（分）</translation>
    </message>
    <message>
        <source>Charging settings-scheduled charging time-start time(hour)</source>
        <translation>充电设置-预约充电时间-开始时间（时）</translation>
    </message>
    <message>
        <source>Charging settings-scheduled charging time-start time(minute)</source>
        <translation>充电设置-预约充电时间-开始时间（分）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1</source>
        <translation>充电设置-时间设置1</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1(Minute)</source>
        <translation>充电设置-时间设置1（分）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1(hour)</source>
        <translation>充电设置-时间设置1（时）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1-repeat(Friday)</source>
        <translation>充电设置-时间设置1-重复（星期五）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1-repeat(Monday)</source>
        <translation>充电设置-时间设置1-重复（星期一）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1-repeat(Saturday)</source>
        <translation>充电设置-时间设置1-重复（星期六）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1-repeat(Sunday)</source>
        <translation>充电设置-时间设置1-重复（星期日）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1-repeat(Thursday)</source>
        <translation>充电设置-时间设置1-重复（星期四）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1-repeat(Tuesday)</source>
        <translation>充电设置-时间设置1-重复（星期二）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 1-repeat(Wednesday)</source>
        <translation>充电设置-时间设置1-重复（星期三）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2</source>
        <translation>充电设置-时间设置2</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2(hour)</source>
        <translation>充电设置-时间设置2（时）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2(minute)</source>
        <translation>充电设置-时间设置2（分）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2-repeat(Friday)</source>
        <translation>充电设置-时间设置2-重复（星期五）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2-repeat(Monday)</source>
        <translation>充电设置-时间设置2-重复（星期一）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2-repeat(Saturday)</source>
        <translation>充电设置-时间设置2-重复（星期六）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2-repeat(Sunday)</source>
        <translation>充电设置-时间设置2-重复（星期日）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2-repeat(Thursday)</source>
        <translation>充电设置-时间设置2-重复（星期四）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2-repeat(Tuesday)</source>
        <translation>充电设置-时间设置2-重复（星期二）</translation>
    </message>
    <message>
        <source>Charging settings-time settings 2-repeat(Wednesday)</source>
        <translation>充电设置-时间设置2-重复（星期三）</translation>
    </message>
    <message>
        <source>How To Set Up An Appointment</source>
        <translation>预约设置方式</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Priority charging during discounted time</source>
        <translation>优惠时段优先充电</translation>
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
        <translation>减少</translation>
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
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem70_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>车窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>车窗-左后</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>车窗-右后</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>车窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem70_3</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6级</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左后车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右后车窗开闭</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗开闭</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem71_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem71_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>车窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>车窗-左后</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>车窗-右后</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>车窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem71_3</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6级</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左后车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右后车窗开闭</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗开闭</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_10</name>
    <message>
        <source>ABS warning indicator</source>
        <translation>ABS警告指示灯</translation>
    </message>
    <message>
        <source>Airbag warning indicator</source>
        <translation>安全气囊警告指示灯</translation>
    </message>
    <message>
        <source>Corner sensor warning indicator</source>
        <translation>转角传感器警告指示灯</translation>
    </message>
    <message>
        <source>Cruise control malfunction warning indicator</source>
        <translation>定速巡航故障警告指示灯</translation>
    </message>
    <message>
        <source>EPB system fault warningLight</source>
        <translation>EPB系统故障警告灯</translation>
    </message>
    <message>
        <source>Engine condensate temperature indicator Light</source>
        <translation>发动机冷却液温度指示灯</translation>
    </message>
    <message>
        <source>Engine emissions malfunction</source>
        <translation>发动机排放故障</translation>
    </message>
    <message>
        <source>Engine malfunction warning light</source>
        <translation>发动机故障警告灯</translation>
    </message>
    <message>
        <source>Handbrake warning light</source>
        <translation>手刹警告灯</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Remote key no power warning indicator</source>
        <translation>遥控钥匙电量耗尽警告指示灯</translation>
    </message>
    <message>
        <source>Seat belt unfastened warning indicator</source>
        <translation>安全带未系警告指示灯</translation>
    </message>
    <message>
        <source>Traction control off warning light</source>
        <translation>牵引力控制关闭警告灯</translation>
    </message>
    <message>
        <source>oil warning light</source>
        <translation>机油警告灯</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_11</name>
    <message>
        <source>Comfortable and convenient-car search instructions</source>
        <translation>舒适便捷-寻车指示</translation>
    </message>
    <message>
        <source>Comfortable and convenient-smart near car unlock</source>
        <translation>舒适便捷-智能近车解锁</translation>
    </message>
    <message>
        <source>Comfortable and convenient-take me home</source>
        <translation>舒适便捷-伴我回家</translation>
    </message>
    <message>
        <source>Comfortable and convenient-unlock mode</source>
        <translation>舒适便捷-解锁模式</translation>
    </message>
    <message>
        <source>Driving maintenance-tire pressure reset</source>
        <translation>行车保养-胎压复位</translation>
    </message>
    <message>
        <source>reset</source>
        <translation>复位</translation>
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
        <translation>高级驾驶辅助-车道偏离警告</translation>
    </message>
    <message>
        <source>Advanced driver assistance-alarm sensitivity</source>
        <translation>高级驾驶辅助-报警灵敏度</translation>
    </message>
    <message>
        <source>Advanced driver assistance-alarm tone</source>
        <translation>高级驾驶辅助-报警提示音</translation>
    </message>
    <message>
        <source>Advanced driver assistance-assist mode</source>
        <translation>高级驾驶辅助-辅助模式</translation>
    </message>
    <message>
        <source>Advanced driver assistance-assist mode1</source>
        <translation>高级驾驶辅助-辅助模式1</translation>
    </message>
    <message>
        <source>Advanced driver assistance-blind spot detection</source>
        <translation>高级驾驶辅助-盲区检测</translation>
    </message>
    <message>
        <source>Advanced driver assistance-forward collision Assist</source>
        <translation>高级驾驶辅助-前碰撞辅助</translation>
    </message>
    <message>
        <source>Advanced driver assistance-lane change assist</source>
        <translation>高级驾驶辅助-变道辅助</translation>
    </message>
    <message>
        <source>Advanced driver assistance-lane keeping assist</source>
        <translation>高级驾驶辅助-车道保持辅助</translation>
    </message>
    <message>
        <source>Advanced driver assistance-rear driving assistance system</source>
        <translation>高级驾驶辅助-后方行车辅助系统</translation>
    </message>
    <message>
        <source>Advanced driver assistance-rear traffic warning</source>
        <translation>高级驾驶辅助-后方交通警告</translation>
    </message>
    <message>
        <source>Advanced driver assistance-speed assist</source>
        <translation>高级驾驶辅助-速度辅助</translation>
    </message>
    <message>
        <source>Advanced driver assistance-traffic jam assist</source>
        <translation>高级驾驶辅助-交通拥堵辅助</translation>
    </message>
    <message>
        <source>Advanced driver assistance-vibration reminder</source>
        <translation>高级驾驶辅助-振动提醒</translation>
    </message>
    <message>
        <source>Air conditioner-air volume in automatic mode</source>
        <translation>空调-自动模式风量</translation>
    </message>
    <message>
        <source>Air conditioner-rear window defrost and defogging linkage</source>
        <translation>空调-后窗除霜除雾联动</translation>
    </message>
    <message>
        <source>Air conditioner-zone temperature settings</source>
        <translation>空调-分区温度设置</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>报警</translation>
    </message>
    <message>
        <source>Alarm + Lane Departure Assist</source>
        <translation>报警+车道偏离辅助</translation>
    </message>
    <message>
        <source>Alarm + Lane Keeping</source>
        <translation>报警+车道保持</translation>
    </message>
    <message>
        <source>Alarm + automatic braking</source>
        <translation>报警+自动制动</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>所有车门</translation>
    </message>
    <message>
        <source>Assisted driving-parking assist system</source>
        <translation>辅助驾驶-泊车辅助系统</translation>
    </message>
    <message>
        <source>Assisted driving-pedestrian warning sound volume</source>
        <translation>辅助驾驶-行人警示音音量</translation>
    </message>
    <message>
        <source>Assisted driving-warning tones for pedestrians</source>
        <translation>辅助驾驶-行人警示音</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Comfort</source>
        <translation>舒适</translation>
    </message>
    <message>
        <source>Comfortable and convenient-automatic folding and unfolding of exterior mirrors</source>
        <translation>舒适便捷-外后视镜自动折叠展开</translation>
    </message>
    <message>
        <source>Comfortable and convenient-car search instructions</source>
        <translation>舒适便捷-寻车指示</translation>
    </message>
    <message>
        <source>Comfortable and convenient-driving lock</source>
        <translation>舒适便捷-行车落锁</translation>
    </message>
    <message>
        <source>Comfortable and convenient-smart near car unlock</source>
        <translation>舒适便捷-智能近车解锁</translation>
    </message>
    <message>
        <source>Comfortable and convenient-steering feel</source>
        <translation>舒适便捷-转向手感</translation>
    </message>
    <message>
        <source>Comfortable and convenient-take me home</source>
        <translation>舒适便捷-伴我回家</translation>
    </message>
    <message>
        <source>Comfortable and convenient-unlock mode</source>
        <translation>舒适便捷-解锁模式</translation>
    </message>
    <message>
        <source>Default dual zone</source>
        <translation>默认双区</translation>
    </message>
    <message>
        <source>Default last time</source>
        <translation>默认上次</translation>
    </message>
    <message>
        <source>Default single zone</source>
        <translation>默认单区</translation>
    </message>
    <message>
        <source>Driver&apos;s side only</source>
        <translation>仅驾驶员侧</translation>
    </message>
    <message>
        <source>Driving maintenance-body stability control</source>
        <translation>行车保养-车身稳定控制</translation>
    </message>
    <message>
        <source>Driving maintenance-economical driving</source>
        <translation>行车保养-经济驾驶</translation>
    </message>
    <message>
        <source>Driving maintenance-steep descent control system</source>
        <translation>行车保养-陡坡缓降系统</translation>
    </message>
    <message>
        <source>Driving maintenance-tire pressure reset</source>
        <translation>行车保养-胎压复位</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Intelligent speed limit</source>
        <translation>智能限速</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>大</translation>
    </message>
    <message>
        <source>Lighting-car search indication duration</source>
        <translation>照明-寻车指示时长</translation>
    </message>
    <message>
        <source>Lighting-take me home and keep the lights on</source>
        <translation>照明-伴我回家保持灯亮</translation>
    </message>
    <message>
        <source>Lighting-the welcome light stays on</source>
        <translation>照明-迎宾灯常亮</translation>
    </message>
    <message>
        <source>Lighting-welcome lights</source>
        <translation>照明-迎宾灯</translation>
    </message>
    <message>
        <source>Lights only</source>
        <translation>仅灯光</translation>
    </message>
    <message>
        <source>Lights+Speakers</source>
        <translation>灯光+扬声器</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Manual speed limit</source>
        <translation>手动限速</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Meter brightness</source>
        <translation>仪表亮度</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Overspeed alarm</source>
        <translation>超速报警</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>小</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>运动</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>end</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>reset</source>
        <translation>复位</translation>
    </message>
    <message>
        <source>start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>sunroof status</source>
        <translation>天窗状态</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_13</name>
    <message>
        <source>1 minute</source>
        <translation>1分钟</translation>
    </message>
    <message>
        <source>1 minute 30s</source>
        <translation>1分30秒</translation>
    </message>
    <message>
        <source>2 minute</source>
        <translation>2分钟</translation>
    </message>
    <message>
        <source>2 minute 30s</source>
        <translation>2分30秒</translation>
    </message>
    <message>
        <source>3 minute</source>
        <translation>3分钟</translation>
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
        <translation>4分钟</translation>
    </message>
    <message>
        <source>4 minute 30s</source>
        <translation>4分30秒</translation>
    </message>
    <message>
        <source>5 minute</source>
        <translation>5分钟</translation>
    </message>
    <message>
        <source>Lighting Control-take me home duration</source>
        <translation>灯光控制-伴我回家时长</translation>
    </message>
    <message>
        <source>Lighting control-car search indication duration</source>
        <translation>灯光控制-寻车指示时长</translation>
    </message>
    <message>
        <source>Lighting control-car search light(low beam lights)</source>
        <translation>灯光控制-寻车灯（近光灯）</translation>
    </message>
    <message>
        <source>Lighting control-car search light(rear fog lamps)</source>
        <translation>灯光控制-寻车灯（后雾灯）</translation>
    </message>
    <message>
        <source>Lighting control-car search light(reversing lights)</source>
        <translation>灯光控制-寻车灯（倒车灯）</translation>
    </message>
    <message>
        <source>Lighting control-take me home(low beam lights)</source>
        <translation>灯光控制-伴我回家（近光灯）</translation>
    </message>
    <message>
        <source>Lighting control-take me home(rear fog lamps)</source>
        <translation>灯光控制-伴我回家（后雾灯）</translation>
    </message>
    <message>
        <source>Lighting control-take me home(reversing lights)</source>
        <translation>灯光控制-伴我回家（倒车灯）</translation>
    </message>
    <message>
        <source>Lock control-smart near car unlock</source>
        <translation>门锁控制-智能近车解锁</translation>
    </message>
    <message>
        <source>Lock control-travel lock</source>
        <translation>门锁控制-行车落锁</translation>
    </message>
    <message>
        <source>Lock control-unlock</source>
        <translation>门锁控制-解锁</translation>
    </message>
    <message>
        <source>Lock control-unlock mode</source>
        <translation>门锁控制-解锁模式</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_14</name>
    <message>
        <source>1 minute</source>
        <translation>1分钟</translation>
    </message>
    <message>
        <source>1 minute 30s</source>
        <translation>1分30秒</translation>
    </message>
    <message>
        <source>2 minute</source>
        <translation>2分钟</translation>
    </message>
    <message>
        <source>2 minute 30s</source>
        <translation>2分30秒</translation>
    </message>
    <message>
        <source>3 minute</source>
        <translation>3分钟</translation>
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
        <translation>4分钟</translation>
    </message>
    <message>
        <source>4 minute 30s</source>
        <translation>4分30秒</translation>
    </message>
    <message>
        <source>5 minute</source>
        <translation>5分钟</translation>
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
        <translation>空调-自动模式风量</translation>
    </message>
    <message>
        <source>Air conditioner-outside air quality sensor sensitivity</source>
        <translation>空调-车外空气质量传感器灵敏度</translation>
    </message>
    <message>
        <source>Air conditioner-rear window defrost and defogging linkage</source>
        <translation>空调-后窗除霜除雾联动</translation>
    </message>
    <message>
        <source>Air conditioner-zone temperature settings</source>
        <translation>空调-分区温度设置</translation>
    </message>
    <message>
        <source>Alarm</source>
        <translation>报警</translation>
    </message>
    <message>
        <source>Alarm + Lane Departure Assist</source>
        <translation>报警+车道偏离辅助</translation>
    </message>
    <message>
        <source>Alarm + Lane Keeping</source>
        <translation>报警+车道保持</translation>
    </message>
    <message>
        <source>All closed</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>All doors</source>
        <translation>所有车门</translation>
    </message>
    <message>
        <source>Assisted driving-Lane change assist system</source>
        <translation>辅助驾驶-变道辅助系统</translation>
    </message>
    <message>
        <source>Assisted driving-alarm sensitivity</source>
        <translation>辅助驾驶-报警灵敏度</translation>
    </message>
    <message>
        <source>Assisted driving-alarm tone</source>
        <translation>辅助驾驶-报警提示音</translation>
    </message>
    <message>
        <source>Assisted driving-alert pedestrian sound</source>
        <translation>辅助驾驶-行人警示音</translation>
    </message>
    <message>
        <source>Assisted driving-assist mode</source>
        <translation>辅助驾驶-辅助模式</translation>
    </message>
    <message>
        <source>Assisted driving-blind spot detection</source>
        <translation>辅助驾驶-盲区检测</translation>
    </message>
    <message>
        <source>Assisted driving-forward ollision assist</source>
        <translation>辅助驾驶-前碰撞辅助</translation>
    </message>
    <message>
        <source>Assisted driving-lane departure warning</source>
        <translation>辅助驾驶-车道偏离警告</translation>
    </message>
    <message>
        <source>Assisted driving-lane keeping assist</source>
        <translation>辅助驾驶-车道保持辅助</translation>
    </message>
    <message>
        <source>Assisted driving-parking assist system</source>
        <translation>辅助驾驶-泊车辅助系统</translation>
    </message>
    <message>
        <source>Assisted driving-pedestrian warning sound volume</source>
        <translation>辅助驾驶-行人警示音音量</translation>
    </message>
    <message>
        <source>Assisted driving-rear driving assistance system</source>
        <translation>辅助驾驶-后方行车辅助系统</translation>
    </message>
    <message>
        <source>Assisted driving-rear traffic warning</source>
        <translation>辅助驾驶-后方交通警告</translation>
    </message>
    <message>
        <source>Assisted driving-speed assist</source>
        <translation>辅助驾驶-速度辅助</translation>
    </message>
    <message>
        <source>Assisted driving-speed limit alarm</source>
        <translation>辅助驾驶-限速报警</translation>
    </message>
    <message>
        <source>Assisted driving-speed limit alarm value</source>
        <translation>辅助驾驶-限速报警值</translation>
    </message>
    <message>
        <source>Assisted driving-traffic jam assist</source>
        <translation>辅助驾驶-交通拥堵辅助</translation>
    </message>
    <message>
        <source>Assisted driving-vibration eminder</source>
        <translation>辅助驾驶-振动提醒</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Comfort</source>
        <translation>舒适</translation>
    </message>
    <message>
        <source>Comfortable and convenient-car search instructions</source>
        <translation>舒适便捷-寻车指示</translation>
    </message>
    <message>
        <source>Comfortable and convenient-steering feel</source>
        <translation>舒适便捷-转向手感</translation>
    </message>
    <message>
        <source>Comfortable and convenient-take me home</source>
        <translation>舒适便捷-伴我回家</translation>
    </message>
    <message>
        <source>Comfortable and convenient-welcome light</source>
        <translation>舒适便捷-迎宾灯</translation>
    </message>
    <message>
        <source>Default dual area</source>
        <translation>默认双区</translation>
    </message>
    <message>
        <source>Default last time</source>
        <translation>默认上次</translation>
    </message>
    <message>
        <source>Default single area</source>
        <translation>默认单区</translation>
    </message>
    <message>
        <source>Driving maintenance-body stability control</source>
        <translation>行车保养-车身稳定控制</translation>
    </message>
    <message>
        <source>Driving maintenance-body stability control mode</source>
        <translation>行车保养-车身稳定控制模式</translation>
    </message>
    <message>
        <source>Driving maintenance-economic model</source>
        <translation>行车保养-经济模式</translation>
    </message>
    <message>
        <source>Driving maintenance-steep descent control system</source>
        <translation>行车保养-陡坡缓降系统</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Intelligent speed limit</source>
        <translation>智能限速</translation>
    </message>
    <message>
        <source>Large</source>
        <translation>大</translation>
    </message>
    <message>
        <source>Lighting Control-take me home duration</source>
        <translation>灯光控制-伴我回家时长</translation>
    </message>
    <message>
        <source>Lighting control-car search indication duration</source>
        <translation>灯光控制-寻车指示时长</translation>
    </message>
    <message>
        <source>Lighting control-car search light(low beam lights)</source>
        <translation>灯光控制-寻车灯（近光灯）</translation>
    </message>
    <message>
        <source>Lighting control-car search light(rear fog lamps)</source>
        <translation>灯光控制-寻车灯（后雾灯）</translation>
    </message>
    <message>
        <source>Lighting control-car search light(reversing lights)</source>
        <translation>灯光控制-寻车灯（倒车灯）</translation>
    </message>
    <message>
        <source>Lighting control-take me home(low beam lights)</source>
        <translation>灯光控制-伴我回家（近光灯）</translation>
    </message>
    <message>
        <source>Lighting control-take me home(rear fog lamps)</source>
        <translation>灯光控制-伴我回家（后雾灯）</translation>
    </message>
    <message>
        <source>Lighting control-take me home(reversing lights)</source>
        <translation>灯光控制-伴我回家（倒车灯）</translation>
    </message>
    <message>
        <source>Lights only</source>
        <translation>仅灯光</translation>
    </message>
    <message>
        <source>Lights+Speakers</source>
        <translation>灯光+扬声器</translation>
    </message>
    <message>
        <source>Lock control-smart near car unlock</source>
        <translation>门锁控制-智能近车解锁</translation>
    </message>
    <message>
        <source>Lock control-travel lock</source>
        <translation>门锁控制-行车落锁</translation>
    </message>
    <message>
        <source>Lock control-unlock</source>
        <translation>门锁控制-解锁</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Manual speed limit</source>
        <translation>手动限速</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>Meter brightness</source>
        <translation>仪表亮度</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Others-automatic folding and unfolding of exterior rearview mirrors</source>
        <translation>其他-外后视镜自动折叠展开</translation>
    </message>
    <message>
        <source>Others-radar alarm tone</source>
        <translation>其他-雷达报警音</translation>
    </message>
    <message>
        <source>Overspeed alarm</source>
        <translation>超速报警</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>小</translation>
    </message>
    <message>
        <source>Sports</source>
        <translation>运动</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Windows and locks-door lock</source>
        <translation>车窗与门锁-门锁</translation>
    </message>
    <message>
        <source>Windows and locks-trunk opening</source>
        <translation>车窗与门锁-后备箱开启</translation>
    </message>
    <message>
        <source>driver side only</source>
        <translation>仅驾驶员侧</translation>
    </message>
    <message>
        <source>fully open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>sports</source>
        <translation>运动</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>标准</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_15</name>
    <message>
        <source>Air PM2.5</source>
        <translation>空气PM2.5</translation>
    </message>
    <message>
        <source>Instantaneous current</source>
        <translation>瞬时电流</translation>
    </message>
    <message>
        <source>Instantaneous voltage</source>
        <translation>瞬时电压</translation>
    </message>
    <message>
        <source>MG-15 Ruiteng</source>
        <translation>MG-15款锐腾</translation>
    </message>
    <message>
        <source>MG-16 Ruiteng</source>
        <translation>MG-16款锐腾</translation>
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
        <translation>车型选择</translation>
    </message>
    <message>
        <source>Motor speed</source>
        <translation>电机转速</translation>
    </message>
    <message>
        <source>Roewe-17 Roewe Ei6 hybrid</source>
        <translation>荣威-17款荣威Ei6混动</translation>
    </message>
    <message>
        <source>Roewe-18 Roewe RX8 high-end</source>
        <translation>荣威-18款荣威RX8高配</translation>
    </message>
    <message>
        <source>Roewe-21 Roewe i5 (1.5T GT DCT light speed version)</source>
        <translation>荣威-21款荣威i5（1.5T GT DCT光速版）</translation>
    </message>
    <message>
        <source>Roewe-Ei5 low profile</source>
        <translation>荣威-Ei5低配</translation>
    </message>
    <message>
        <source>Roewe-Ei5 mid-spec</source>
        <translation>荣威-Ei5中配</translation>
    </message>
    <message>
        <source>Roewe-Other</source>
        <translation>荣威-其他</translation>
    </message>
    <message>
        <source>Roewe-RX3</source>
        <translation>荣威-RX3</translation>
    </message>
    <message>
        <source>Roewe-Roewe RX5</source>
        <translation>荣威-荣威RX5</translation>
    </message>
    <message>
        <source>Roewe-Roewe RX8</source>
        <translation>荣威-荣威RX8</translation>
    </message>
    <message>
        <source>Roewe-Roewe i5</source>
        <translation>荣威-荣威i5</translation>
    </message>
    <message>
        <source>Roewe-Roewe i6</source>
        <translation>荣威-荣威i6</translation>
    </message>
    <message>
        <source>ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>front radar distance</source>
        <translation>前雷达距离</translation>
    </message>
    <message>
        <source>null</source>
        <translation>无</translation>
    </message>
    <message>
        <source>rear radar distance</source>
        <translation>后雷达距离</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>车窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>车窗-左后</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>车窗-右后</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>车窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_3</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左后车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右后车窗开闭</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗开闭</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_4</name>
    <message>
        <source>km ordinate</source>
        <translation>km纵坐标</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_5</name>
    <message>
        <source>km ordinate</source>
        <translation>km纵坐标</translation>
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
        <translation>最近250km平均电耗</translation>
    </message>
    <message>
        <source>Driving charging mode</source>
        <translation>行车充电模式</translation>
    </message>
    <message>
        <source>Energy recovery class</source>
        <translation>能量回收等级</translation>
    </message>
    <message>
        <source>Energy recovery mode</source>
        <translation>能量回收模式</translation>
    </message>
    <message>
        <source>Engine driving mode</source>
        <translation>发动机驱动模式</translation>
    </message>
    <message>
        <source>Fuel life</source>
        <translation>燃油续航里程</translation>
    </message>
    <message>
        <source>Hybrid system mode</source>
        <translation>混动系统模式</translation>
    </message>
    <message>
        <source>Idle Charge Mode</source>
        <translation>怠速充电模式</translation>
    </message>
    <message>
        <source>Parallel driving mode</source>
        <translation>并联驱动模式</translation>
    </message>
    <message>
        <source>Pure electric charging mode</source>
        <translation>纯电充电模式</translation>
    </message>
    <message>
        <source>Series driving mode</source>
        <translation>串联驱动模式</translation>
    </message>
    <message>
        <source>battery life</source>
        <translation>纯电续航里程</translation>
    </message>
    <message>
        <source>default mode</source>
        <translation>默认模式</translation>
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
        <translation>强</translation>
    </message>
    <message>
        <source>total battery life</source>
        <translation>总续航里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_7</name>
    <message>
        <source>CUSTOM</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Intake air temperature</source>
        <translation>进气温度</translation>
    </message>
    <message>
        <source>SUPER SPORT</source>
        <translation>超级运动</translation>
    </message>
    <message>
        <source>State under custom-comfort air conditioning</source>
        <translation>自定义状态-舒适空调</translation>
    </message>
    <message>
        <source>State under custom-dynamic response</source>
        <translation>自定义状态-动力响应</translation>
    </message>
    <message>
        <source>State under custom-steering feel</source>
        <translation>自定义状态-转向手感</translation>
    </message>
    <message>
        <source>coolant temperature</source>
        <translation>冷却液温度</translation>
    </message>
    <message>
        <source>driving mode</source>
        <translation>驾驶模式</translation>
    </message>
    <message>
        <source>economy</source>
        <translation>经济</translation>
    </message>
    <message>
        <source>hydraulics pressure</source>
        <translation>液压</translation>
    </message>
    <message>
        <source>sports</source>
        <translation>运动</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>turbo pressure</source>
        <translation>涡轮压力</translation>
    </message>
</context>
<context>
    <name>CarInfoItem72_8</name>
    <message>
        <source>Left front tire pressure value</source>
        <translation>左前胎压值</translation>
    </message>
    <message>
        <source>Left rear tire pressure value</source>
        <translation>左后胎压值</translation>
    </message>
    <message>
        <source>Right front tire pressure value</source>
        <translation>右前胎压值</translation>
    </message>
    <message>
        <source>Right rear tire pressure value</source>
        <translation>右后胎压值</translation>
    </message>
    <message>
        <source>Temperature-back left</source>
        <translation>温度-左后</translation>
    </message>
    <message>
        <source>Temperature-back right</source>
        <translation>温度-右后</translation>
    </message>
    <message>
        <source>Temperature-front left</source>
        <translation>温度-左前</translation>
    </message>
    <message>
        <source>Temperature-front right</source>
        <translation>温度-右前</translation>
    </message>
    <message>
        <source>Tire pressure back left</source>
        <translation>胎压-左后</translation>
    </message>
    <message>
        <source>Tire pressure back right</source>
        <translation>胎压-右后</translation>
    </message>
    <message>
        <source>Tire pressure front left</source>
        <translation>胎压-左前</translation>
    </message>
    <message>
        <source>Tire pressure front right</source>
        <translation>胎压-右前</translation>
    </message>
    <message>
        <source>abnormal</source>
        <translation>异常</translation>
    </message>
    <message>
        <source>normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>reset</source>
        <translation>复位</translation>
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
        <translation>后</translation>
    </message>
    <message>
        <source>Back Left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back Right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Back Zoom</source>
        <translation>后方放大</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>进入</translation>
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
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Panorama status-car auxiliary line</source>
        <translation>全景状态-车辆辅助线</translation>
    </message>
    <message>
        <source>Panorama status-condition</source>
        <translation>全景状态-状态</translation>
    </message>
    <message>
        <source>Panorama status-features</source>
        <translation>全景状态-功能</translation>
    </message>
    <message>
        <source>Panorama status-model</source>
        <translation>全景状态-模式</translation>
    </message>
    <message>
        <source>Panorama status-turn on the turn signal automatically at low speed 360</source>
        <translation>全景状态-低速打转向灯自动开启360</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>camera status</source>
        <translation>摄像头状态</translation>
    </message>
    <message>
        <source>dynamic</source>
        <translation>动态</translation>
    </message>
    <message>
        <source>dynamic+static</source>
        <translation>动态+静态</translation>
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
        <translation>静态</translation>
    </message>
    <message>
        <source>without</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>CarInfoItem74_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem74_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>车窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>车窗-左后</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>车窗-右后</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>车窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem74_3</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6级</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左后车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右后车窗开闭</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗开闭</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem78_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem78_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>车窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>车窗-左后</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>车窗-右后</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>车窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem78_3</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6级</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左后车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右后车窗开闭</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗开闭</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem79_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem79_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>车窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>车窗-左后</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>车窗-右后</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>车窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem79_3</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6级</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左后车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右后车窗开闭</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗开闭</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem87_1</name>
    <message>
        <source>Amplifier</source>
        <translation>功放</translation>
    </message>
    <message>
        <source>Amplifier 1</source>
        <translation>功放1</translation>
    </message>
    <message>
        <source>Amplifier 2</source>
        <translation>功放2</translation>
    </message>
    <message>
        <source>Bass</source>
        <translation>低音</translation>
    </message>
    <message>
        <source>Centrik speaker</source>
        <translation>中置扬声器</translation>
    </message>
    <message>
        <source>Classical</source>
        <translation>古典</translation>
    </message>
    <message>
        <source>Jazz-Blues</source>
        <translation>爵士-蓝调</translation>
    </message>
    <message>
        <source>Loudness</source>
        <translation>响度</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中音</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Pop-Rock</source>
        <translation>流行-摇滚</translation>
    </message>
    <message>
        <source>Subwoofer</source>
        <translation>重低音</translation>
    </message>
    <message>
        <source>Techno</source>
        <translation>电子</translation>
    </message>
    <message>
        <source>Treble</source>
        <translation>高音</translation>
    </message>
    <message>
        <source>User</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>Vocal</source>
        <translation>人声</translation>
    </message>
    <message>
        <source>Volume linked to speed</source>
        <translation>音量随车速调节</translation>
    </message>
    <message>
        <source>balance left and right</source>
        <translation>左右平衡</translation>
    </message>
    <message>
        <source>front and rear balance</source>
        <translation>前后平衡</translation>
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
        <translation>电耗第一格</translation>
    </message>
    <message>
        <source>Power consumption second grid</source>
        <translation>电耗第二格</translation>
    </message>
    <message>
        <source>Power consumption third grid</source>
        <translation>电耗第三格</translation>
    </message>
    <message>
        <source>Power consumption fourth grid</source>
        <translation>电耗第四格</translation>
    </message>
    <message>
        <source>Power consumption fifth grid</source>
        <translation>电耗第五格</translation>
    </message>
    <message>
        <source>Power consumption sixth grid</source>
        <translation>电耗第六格</translation>
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
        <translation>0~180分钟</translation>
    </message>
    <message>
        <source>0~60min</source>
        <translation>0~60分钟</translation>
    </message>
    <message>
        <source>Average fuel consumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average power consumption</source>
        <translation>平均电耗</translation>
    </message>
    <message>
        <source>Fuel consumption graph-X axis spacing</source>
        <translation>油耗曲线-X轴间距</translation>
    </message>
    <message>
        <source>Power consumption graph-X axis spacing</source>
        <translation>电耗曲线-X轴间距</translation>
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
        <translation>充电-总时间（分）</translation>
    </message>
    <message>
        <source>Charging-total time(hours)</source>
        <translation>充电-总时间（时）</translation>
    </message>
    <message>
        <source>Energy reserve-distance</source>
        <translation>能量储备-里程</translation>
    </message>
    <message>
        <source>MAX</source>
        <translation>MAX</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>energy reserve</source>
        <translation>能量储备</translation>
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
        <translation>清除页面1参数</translation>
    </message>
    <message>
        <source>Clear the PAGE2 parameter</source>
        <translation>清除页面2参数</translation>
    </message>
    <message>
        <source>Default mileage</source>
        <translation>默认里程</translation>
    </message>
    <message>
        <source>Indicates accumulated mileage</source>
        <translation>累计里程</translation>
    </message>
    <message>
        <source>Indicates accumulated mileage 2</source>
        <translation>累计里程2</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Outdoor temperature</source>
        <translation>车外温度</translation>
    </message>
    <message>
        <source>Page0</source>
        <translation>页面0</translation>
    </message>
    <message>
        <source>Page1</source>
        <translation>页面1</translation>
    </message>
    <message>
        <source>Page2</source>
        <translation>页面2</translation>
    </message>
    <message>
        <source>Set predetermined mileage parameters</source>
        <translation>设置预定里程参数</translation>
    </message>
    <message>
        <source>Set scheduled mileage</source>
        <translation>设置预定里程</translation>
    </message>
    <message>
        <source>Start stop function timing</source>
        <translation>启停功能计时</translation>
    </message>
    <message>
        <source>Trip computer currently displayed page</source>
        <translation>行车电脑当前显示页</translation>
    </message>
    <message>
        <source>average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>average speed 2</source>
        <translation>平均车速2</translation>
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
        <translation>续航里程</translation>
    </message>
    <message>
        <source>set mileage</source>
        <translation>设置里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem87_3</name>
    <message>
        <source>180° View</source>
        <translation>180°视图</translation>
    </message>
    <message>
        <source>3008</source>
        <translation>3008</translation>
    </message>
    <message>
        <source>3008,408 before 13 and 13,etc.,keep the original car small screen</source>
        <translation>3008、13款之前的408及13款等，保留原车小屏</translation>
    </message>
    <message>
        <source>308,408,C3-XR retain the original car screen</source>
        <translation>308、408、C3-XR保留原车屏</translation>
    </message>
    <message>
        <source>360°</source>
        <translation>360°</translation>
    </message>
    <message>
        <source>4008 Keep the original car screen</source>
        <translation>4008保留原车屏</translation>
    </message>
    <message>
        <source>Air volume intensity</source>
        <translation>风量强度</translation>
    </message>
    <message>
        <source>Auto View</source>
        <translation>自动视图</translation>
    </message>
    <message>
        <source>Back View</source>
        <translation>后视图</translation>
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
        <translation>指南针信息-方向</translation>
    </message>
    <message>
        <source>Driving Assist</source>
        <translation>驾驶辅助</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>进入</translation>
    </message>
    <message>
        <source>Fatigue Monitoring</source>
        <translation>疲劳监测</translation>
    </message>
    <message>
        <source>Front View</source>
        <translation>前视图</translation>
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
        <translation>液晶仪表自定义模式（左）</translation>
    </message>
    <message>
        <source>LCD meter custom mode(right)</source>
        <translation>液晶仪表自定义模式（右）</translation>
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
        <translation>媒体</translation>
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
        <translation>混动能量流</translation>
    </message>
    <message>
        <source>Navigation</source>
        <translation>导航</translation>
    </message>
    <message>
        <source>Not muted</source>
        <translation>未静音</translation>
    </message>
    <message>
        <source>Panorama mode</source>
        <translation>全景模式</translation>
    </message>
    <message>
        <source>Panorama state</source>
        <translation>全景状态</translation>
    </message>
    <message>
        <source>Standard View</source>
        <translation>标准视图</translation>
    </message>
    <message>
        <source>Tachometer</source>
        <translation>转速表</translation>
    </message>
    <message>
        <source>Temperature</source>
        <translation>温度</translation>
    </message>
    <message>
        <source>Trip Computer</source>
        <translation>行车电脑</translation>
    </message>
    <message>
        <source>Zoom View</source>
        <translation>放大视图</translation>
    </message>
    <message>
        <source>car model</source>
        <translation>车型</translation>
    </message>
    <message>
        <source>configure</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>mute control</source>
        <translation>静音控制</translation>
    </message>
    <message>
        <source>null</source>
        <translation>无</translation>
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
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Preset switch</source>
        <translation>预设开关</translation>
    </message>
    <message>
        <source>time(Minute)</source>
        <translation>时间（分）</translation>
    </message>
    <message>
        <source>time(hour)</source>
        <translation>时间（时）</translation>
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
        <translation>所有车门</translation>
    </message>
    <message>
        <source>Blind spot detection</source>
        <translation>盲区检测</translation>
    </message>
    <message>
        <source>Bright Brown</source>
        <translation>亮棕色</translation>
    </message>
    <message>
        <source>Celsius</source>
        <translation>摄氏度</translation>
    </message>
    <message>
        <source>Central door lock status</source>
        <translation>中控门锁状态</translation>
    </message>
    <message>
        <source>Chinese</source>
        <translation>中文</translation>
    </message>
    <message>
        <source>Crimson</source>
        <translation>深红色</translation>
    </message>
    <message>
        <source>Crystal Rhythm</source>
        <translation>水晶律动</translation>
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
        <translation>禁用后视镜自动折叠</translation>
    </message>
    <message>
        <source>Disable when reversing</source>
        <translation>倒车时禁用</translation>
    </message>
    <message>
        <source>Door self locking status</source>
        <translation>车门自锁状态</translation>
    </message>
    <message>
        <source>Driver&apos;s door only</source>
        <translation>仅驾驶员车门</translation>
    </message>
    <message>
        <source>Driving assist brake</source>
        <translation>驾驶辅助制动</translation>
    </message>
    <message>
        <source>Electric trunkLid</source>
        <translation>电动后备箱盖</translation>
    </message>
    <message>
        <source>Enable when reversing</source>
        <translation>倒车时启用</translation>
    </message>
    <message>
        <source>Engine start stop function is deactivated</source>
        <translation>发动机启停功能已停用</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>Fahrenheit</source>
        <translation>华氏度</translation>
    </message>
    <message>
        <source>Far</source>
        <translation>远</translation>
    </message>
    <message>
        <source>Fatigue detection system</source>
        <translation>疲劳检测系统</translation>
    </message>
    <message>
        <source>Follow up turn headlights</source>
        <translation>随动转向大灯</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法语</translation>
    </message>
    <message>
        <source>Fuel consumption unit setting</source>
        <translation>油耗单位设置</translation>
    </message>
    <message>
        <source>Jade green</source>
        <translation>翡翠绿</translation>
    </message>
    <message>
        <source>Jungle Dream</source>
        <translation>丛林之梦</translation>
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
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>开</translation>
    </message>
    <message>
        <source>P file</source>
        <translation>P挡</translation>
    </message>
    <message>
        <source>PGear or handbrake</source>
        <translation>P挡或手刹</translation>
    </message>
    <message>
        <source>Page0</source>
        <translation>页面0</translation>
    </message>
    <message>
        <source>Page1</source>
        <translation>页面1</translation>
    </message>
    <message>
        <source>Page2</source>
        <translation>页面2</translation>
    </message>
    <message>
        <source>Rear view mirror adaptive</source>
        <translation>后视镜自适应</translation>
    </message>
    <message>
        <source>Reversing radar deactivated</source>
        <translation>倒车雷达已停用</translation>
    </message>
    <message>
        <source>Reversing state</source>
        <translation>倒车状态</translation>
    </message>
    <message>
        <source>Sky Blue</source>
        <translation>天蓝色</translation>
    </message>
    <message>
        <source>Sound settings</source>
        <translation>声音设置</translation>
    </message>
    <message>
        <source>Speed limit reminder</source>
        <translation>限速提醒</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>Take me home lighting</source>
        <translation>伴我回家照明</translation>
    </message>
    <message>
        <source>The trunk opens automatically</source>
        <translation>后备箱自动打开</translation>
    </message>
    <message>
        <source>Traction control system</source>
        <translation>牵引力控制系统</translation>
    </message>
    <message>
        <source>Traffic sign recognition</source>
        <translation>交通标志识别</translation>
    </message>
    <message>
        <source>Trip computer currently displayed page</source>
        <translation>行车电脑当前显示页</translation>
    </message>
    <message>
        <source>Unlock the trunk only</source>
        <translation>仅解锁后备箱</translation>
    </message>
    <message>
        <source>Welcome function</source>
        <translation>迎宾功能</translation>
    </message>
    <message>
        <source>Welcome lighting</source>
        <translation>迎宾灯</translation>
    </message>
    <message>
        <source>agate red</source>
        <translation>玛瑙红</translation>
    </message>
    <message>
        <source>classic sound</source>
        <translation>经典音效</translation>
    </message>
    <message>
        <source>day lighting</source>
        <translation>日间行车灯</translation>
    </message>
    <message>
        <source>door opening options</source>
        <translation>开门选项</translation>
    </message>
    <message>
        <source>driver assistance system</source>
        <translation>驾驶辅助系统</translation>
    </message>
    <message>
        <source>emergency braking</source>
        <translation>紧急制动</translation>
    </message>
    <message>
        <source>enable</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>light status</source>
        <translation>灯光状态</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>已上锁</translation>
    </message>
    <message>
        <source>mood lighting status</source>
        <translation>氛围灯状态</translation>
    </message>
    <message>
        <source>non-P file</source>
        <translation>非P挡</translation>
    </message>
    <message>
        <source>non-reversing</source>
        <translation>非倒车</translation>
    </message>
    <message>
        <source>rear wiper</source>
        <translation>后雨刮</translation>
    </message>
    <message>
        <source>reverse</source>
        <translation>倒车</translation>
    </message>
    <message>
        <source>sapphire blue</source>
        <translation>蓝宝石蓝</translation>
    </message>
    <message>
        <source>temperature unit</source>
        <translation>温度单位</translation>
    </message>
    <message>
        <source>theme color</source>
        <translation>主题色</translation>
    </message>
    <message>
        <source>unlocked</source>
        <translation>已解锁</translation>
    </message>
    <message>
        <source>urban rhythm</source>
        <translation>都市律动</translation>
    </message>
</context>
<context>
    <name>CarInfoItem87_6</name>
    <message>
        <source>speed 1 state</source>
        <translation>车速1状态</translation>
    </message>
    <message>
        <source>speed 2 state</source>
        <translation>车速2状态</translation>
    </message>
    <message>
        <source>speed 3 state</source>
        <translation>车速3状态</translation>
    </message>
    <message>
        <source>speed 4 state</source>
        <translation>车速4状态</translation>
    </message>
    <message>
        <source>speed 5 state</source>
        <translation>车速5状态</translation>
    </message>
    <message>
        <source>speed 1</source>
        <translation>车速1</translation>
    </message>
    <message>
        <source>speed 2</source>
        <translation>车速2</translation>
    </message>
    <message>
        <source>speed 3</source>
        <translation>车速3</translation>
    </message>
    <message>
        <source>speed 4</source>
        <translation>车速4</translation>
    </message>
    <message>
        <source>speed 5</source>
        <translation>车速5</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>未选</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>开</translation>
    </message>
    <message>
        <source>choose</source>
        <translation>已选</translation>
    </message>
    <message>
        <source>memory speed</source>
        <translation>记忆车速</translation>
    </message>
</context>
<context>
    <name>CarInfoItem87_7</name>
    <message>
        <source>Cruising speed 1</source>
        <translation>巡航车速1</translation>
    </message>
    <message>
        <source>Cruising speed 2</source>
        <translation>巡航车速2</translation>
    </message>
    <message>
        <source>Cruising speed 3</source>
        <translation>巡航车速3</translation>
    </message>
    <message>
        <source>Cruising speed 4</source>
        <translation>巡航车速4</translation>
    </message>
    <message>
        <source>Cruising speed 5</source>
        <translation>巡航车速5</translation>
    </message>
    <message>
        <source>Cruising speed 6</source>
        <translation>巡航车速6</translation>
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
        <translation>关</translation>
    </message>
    <message>
        <source>cruise speed popup</source>
        <translation>巡航车速弹窗</translation>
    </message>
    <message>
        <source>pop up</source>
        <translation>弹出</translation>
    </message>
    <message>
        <source>speed limit popup</source>
        <translation>限速弹窗</translation>
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
        <translation>防碰撞，前喇叭鸣响</translation>
    </message>
    <message>
        <source>Decoding end parallel anti collision sound</source>
        <translation>解码盒并线防碰撞提示音</translation>
    </message>
    <message>
        <source>Far and near lLight intelligent auxiliary system</source>
        <translation>远近光智能辅助系统</translation>
    </message>
    <message>
        <source>Left superLine,left front horn beeps</source>
        <translation>左侧越线，左前喇叭鸣响</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Parallel auxiliary</source>
        <translation>并线辅助</translation>
    </message>
    <message>
        <source>Right super line,right front horn beeps</source>
        <translation>右侧越线，右前喇叭鸣响</translation>
    </message>
    <message>
        <source>keyless entry system</source>
        <translation>无钥匙进入系统</translation>
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
        <translation>舒适</translation>
    </message>
    <message>
        <source>Economy</source>
        <translation>经济</translation>
    </message>
    <message>
        <source>Electric</source>
        <translation>电动</translation>
    </message>
    <message>
        <source>Front wheel brake energy recovery</source>
        <translation>前轮制动能量回收</translation>
    </message>
    <message>
        <source>Hybrid</source>
        <translation>混动</translation>
    </message>
    <message>
        <source>Mud</source>
        <translation>泥地</translation>
    </message>
    <message>
        <source>Rear brake energy recovery</source>
        <translation>后轮制动能量回收</translation>
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
        <translation>运动</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>The engine charges the battery</source>
        <translation>发动机给电池充电</translation>
    </message>
    <message>
        <source>battery driven front wheels</source>
        <translation>电池驱动前轮</translation>
    </message>
    <message>
        <source>battery driven rear wheel</source>
        <translation>电池驱动后轮</translation>
    </message>
    <message>
        <source>engine</source>
        <translation>发动机</translation>
    </message>
    <message>
        <source>engine driven front wheels</source>
        <translation>发动机驱动前轮</translation>
    </message>
    <message>
        <source>model</source>
        <translation>驾驶模式</translation>
    </message>
    <message>
        <source>scroll</source>
        <translation>滚动</translation>
    </message>
    <message>
        <source>still</source>
        <translation>静止</translation>
    </message>
    <message>
        <source>tire rolling</source>
        <translation>轮胎滚动</translation>
    </message>
</context>
<context>
    <name>CarInfoItem96_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem96_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>车窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>车窗-左后</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>车窗-右后</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>车窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem96_3</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6级</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左后车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右后车窗开闭</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗开闭</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem97_1</name>
    <message>
        <source>Air conditioning seat heating</source>
        <translation>空调座椅加热</translation>
    </message>
    <message>
        <source>Air conditioning temperature</source>
        <translation>空调温度</translation>
    </message>
    <message>
        <source>All car windows</source>
        <translation>所有车窗</translation>
    </message>
    <message>
        <source>Already opened</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Back left</source>
        <translation>左后</translation>
    </message>
    <message>
        <source>Back right</source>
        <translation>右后</translation>
    </message>
    <message>
        <source>Closed</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>Closing</source>
        <translation>正在关闭</translation>
    </message>
    <message>
        <source>Co-pilot</source>
        <translation>副驾驶</translation>
    </message>
    <message>
        <source>Current car window</source>
        <translation>当前车窗</translation>
    </message>
    <message>
        <source>Current window status</source>
        <translation>当前车窗状态</translation>
    </message>
    <message>
        <source>Driving position</source>
        <translation>驾驶位</translation>
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
        <translation>天窗翘起</translation>
    </message>
    <message>
        <source>Sunroof sun visor</source>
        <translation>天窗遮阳帘</translation>
    </message>
    <message>
        <source>This feature is not supported</source>
        <translation>不支持此功能</translation>
    </message>
    <message>
        <source>Trunk</source>
        <translation>后备箱</translation>
    </message>
    <message>
        <source>opening</source>
        <translation>正在打开</translation>
    </message>
</context>
<context>
    <name>CarInfoItem97_2</name>
    <message>
        <source>ACC status</source>
        <translation>ACC状态</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
    </message>
    <message>
        <source>Average fuel onsumption</source>
        <translation>平均油耗</translation>
    </message>
    <message>
        <source>Average speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>Brake state</source>
        <translation>制动状态</translation>
    </message>
    <message>
        <source>Car window-front left</source>
        <translation>车窗-左前</translation>
    </message>
    <message>
        <source>Car window-rear left</source>
        <translation>车窗-左后</translation>
    </message>
    <message>
        <source>Car window-rear right</source>
        <translation>车窗-右后</translation>
    </message>
    <message>
        <source>Car window-right front</source>
        <translation>车窗-右前</translation>
    </message>
    <message>
        <source>Control module voltage</source>
        <translation>控制模块电压</translation>
    </message>
    <message>
        <source>Copilot seat belt</source>
        <translation>副驾驶安全带</translation>
    </message>
    <message>
        <source>Corner function</source>
        <translation>转角功能</translation>
    </message>
    <message>
        <source>Door information</source>
        <translation>车门信息</translation>
    </message>
    <message>
        <source>Driving seat belt</source>
        <translation>驾驶员安全带</translation>
    </message>
    <message>
        <source>Engine oil temperature</source>
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Engine speed</source>
        <translation>发动机转速</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Gear status</source>
        <translation>挡位状态</translation>
    </message>
    <message>
        <source>Handbrake status</source>
        <translation>手刹状态</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instantaneous fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Reverse gear</source>
        <translation>倒挡</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>The width light</source>
        <translation>示宽灯</translation>
    </message>
    <message>
        <source>Tire speed information</source>
        <translation>轮速信息</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Wiper</source>
        <translation>雨刮</translation>
    </message>
    <message>
        <source>light</source>
        <translation>灯光</translation>
    </message>
    <message>
        <source>recharge mleage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CarInfoItem97_3</name>
    <message>
        <source>All off</source>
        <translation>全部关闭</translation>
    </message>
    <message>
        <source>Ambient temperature</source>
        <translation>环境温度</translation>
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
        <translation>机油温度</translation>
    </message>
    <message>
        <source>Frame Number Information</source>
        <translation>车架号信息</translation>
    </message>
    <message>
        <source>Front fog lights</source>
        <translation>前雾灯</translation>
    </message>
    <message>
        <source>Front left door lock state</source>
        <translation>左前门锁状态</translation>
    </message>
    <message>
        <source>Front left tire speed</source>
        <translation>左前轮速</translation>
    </message>
    <message>
        <source>Front right door lock state</source>
        <translation>右前门锁状态</translation>
    </message>
    <message>
        <source>Full open</source>
        <translation>全开</translation>
    </message>
    <message>
        <source>Half open</source>
        <translation>半开</translation>
    </message>
    <message>
        <source>High beam</source>
        <translation>远光灯</translation>
    </message>
    <message>
        <source>Instant fuel consumption</source>
        <translation>瞬时油耗</translation>
    </message>
    <message>
        <source>Instantaneous speed</source>
        <translation>瞬时车速</translation>
    </message>
    <message>
        <source>Left front pulse number</source>
        <translation>左前脉冲数</translation>
    </message>
    <message>
        <source>Left rear pulse number</source>
        <translation>左后脉冲数</translation>
    </message>
    <message>
        <source>Left turn signal</source>
        <translation>左转向灯</translation>
    </message>
    <message>
        <source>Level 1</source>
        <translation>1级</translation>
    </message>
    <message>
        <source>Level 2</source>
        <translation>2级</translation>
    </message>
    <message>
        <source>Level 3</source>
        <translation>3级</translation>
    </message>
    <message>
        <source>Level 4</source>
        <translation>4级</translation>
    </message>
    <message>
        <source>Level 5</source>
        <translation>5级</translation>
    </message>
    <message>
        <source>Level 6</source>
        <translation>6级</translation>
    </message>
    <message>
        <source>Level 7</source>
        <translation>7级</translation>
    </message>
    <message>
        <source>Lock up</source>
        <translation>锁止</translation>
    </message>
    <message>
        <source>Low beam lights</source>
        <translation>近光灯</translation>
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
        <translation>电机转速信息</translation>
    </message>
    <message>
        <source>Number of pulses per tire lap</source>
        <translation>每圈轮胎脉冲数</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>关</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Opening and closing of left front window</source>
        <translation>左前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of left rear window</source>
        <translation>左后车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right front window</source>
        <translation>右前车窗开闭</translation>
    </message>
    <message>
        <source>Opening and closing of right rear window</source>
        <translation>右后车窗开闭</translation>
    </message>
    <message>
        <source>Rear fog lamps</source>
        <translation>后雾灯</translation>
    </message>
    <message>
        <source>Rear left door locked state</source>
        <translation>左后门锁状态</translation>
    </message>
    <message>
        <source>Rear right door locked state</source>
        <translation>右后门锁状态</translation>
    </message>
    <message>
        <source>Right front pulse number</source>
        <translation>右前脉冲数</translation>
    </message>
    <message>
        <source>Right front tire speed</source>
        <translation>右前轮速</translation>
    </message>
    <message>
        <source>Right rear pulse number</source>
        <translation>右后脉冲数</translation>
    </message>
    <message>
        <source>Right turn signal</source>
        <translation>右转向灯</translation>
    </message>
    <message>
        <source>Rotating speed</source>
        <translation>转速</translation>
    </message>
    <message>
        <source>Skylight</source>
        <translation>天窗</translation>
    </message>
    <message>
        <source>Skylight opening and closing</source>
        <translation>天窗开闭</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
    <message>
        <source>Voltage</source>
        <translation>电压</translation>
    </message>
    <message>
        <source>Water temperature information</source>
        <translation>水温信息</translation>
    </message>
    <message>
        <source>Width indicator</source>
        <translation>示宽指示</translation>
    </message>
    <message>
        <source>Wiper speed level</source>
        <translation>雨刮速度档位</translation>
    </message>
    <message>
        <source>avarage speed</source>
        <translation>平均车速</translation>
    </message>
    <message>
        <source>recharge mileage</source>
        <translation>续航里程</translation>
    </message>
    <message>
        <source>total mileage</source>
        <translation>总里程</translation>
    </message>
</context>
<context>
    <name>CardoorDialog27</name>
    <message>
        <source>Seatbelt not fastened</source>
        <translation>安全带未系</translation>
    </message>
    <message>
        <source>Auto Parking Abnormal</source>
        <translation>自动泊车异常</translation>
    </message>
    <message>
        <source>Abnormal condensate</source>
        <translation>冷却液异常</translation>
    </message>
</context>
<context>
    <name>ExView</name>
    <message>
        <source>tire pressure</source>
        <translation>胎压</translation>
    </message>
</context>
<context>
    <name>ListDialog</name>
    <message>
        <source>Download</source>
        <translation>下载</translation>
    </message>
</context>
<context>
    <name>SampleReverseView</name>
    <message>
        <source>Camera connected</source>
        <translation>摄像头已连接</translation>
    </message>
    <message>
        <source>No camera signal</source>
        <translation>无摄像头信号</translation>
    </message>
</context>
<context>
    <name>StatusBarModeWidget27</name>
    <message>
        <source>Air conditioner</source>
        <translation>空调</translation>
    </message>
</context>
<context>
    <name>TirePressure</name>
    <message>
        <source>When the pressure of all 4 tires are checked correctly and there is no problem, please click Reset</source>
        <translation>四个轮胎的胎压均已检查正常且无问题时，请点击复位</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>复位</translation>
    </message>
</context>
</TS>

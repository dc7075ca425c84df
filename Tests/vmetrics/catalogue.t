The metrics that the library knows, those with a numeric ID and those with an event ID:

  $ vmetrics catalogue
  ID          SIDE    DECIMAL    TYPE      PRIVATE  NAME                           GROUP
  0x110A0000  server  285868032  string             processName                    process
  0x110A0001  server  285868033  uint64_t           blueScreenTime                 process
  0x120A0000  server  302645248  int                displayOSRenderingDelay        display
  0x120A0001  server  302645249  int                displayFPS                     display
  0x120A0002  server  302645250  int                displayDataCopyDelay           display
  0x120A0003  server  302645251  int                displayEncodingDelay           display
  0x120A0004  server  302645252  int                displayFlowControl             display
  0x120A0005  server  302645253  string             displayResolution              display
  0x120A0006  server  302645254  enum               displayOriginalFormat          display
  0x120A0007  server  302645255  enum               displayDecodingFormat          display
  0x120A0008  server  302645256  enum               displayEncoderType             display
  0x120A0009  server  302645257  json               displayBITRate                 display
  0x120A000A  server  302645258  int                displayNumberOfVideoEncoders   display
  0x120A000B  server  302645259  int                displayEnableFullScreenVideo   display
  0x120A000C  server  302645260  int                displayEnable10Bits            display
  0x120A000D  server  302645261  int                displayEnableYuv444            display
  0x120A000E  server  302645262  int                displayEnableColorType         display
  0x120A000F  server  302645263  int                displayEnableChangeResolution  display
  0x120A0010  server  302645264  int                displayEnableAdaptive          display
  0x120A0011  server  302645265  string             enumDisplayDevicesBlock        display
  0x120B0000  client  302710784  int                displayDataCopyDelay           display
  0x120B0001  client  302710785  int                displayFPS                     display
  0x120B0002  client  302710786  int                displayDecodingDelay           display
  0x120B0003  client  302710787  int                displayRenderingDelay          display
  0x120B0004  client  302710788  int                displayScheduleDelay           display
  0x120B0005  client  302710789  string             displayResolution              display
  0x120B0006  client  302710790  enum               displayOriginalFormat          display
  0x120B0007  client  302710791  enum               displayDecodingFormat          display
  0x120B0008  client  302710792  enum               displayDecoderType             display
  0x120B0009  client  302710793  json               displayBITRate                 display
  0x120B000A  client  302710794  int                displayNumberOfVideoDecoders   display
  0x120B000B  client  302710795  int                displayEndToEndDelay           display
  0x120B000C  client  302710796  json               displayClientInfo              display
  0x130B0003  client  319488003  json               inputRtt                       input
  0x140B0000  client  336265216  int                audioLatency                   audio
  0x150A0000  server  352976896  string             fdRedirdiskInfo                drive redirection
  0x150B0000  client  353042432  string             fdRedirdiskInfo                drive redirection
  0x160A0000  server  369754112  string             clipboardCopyType              clipboard
  0x160A0001  server  369754113  int                clipboardCopySize              clipboard
  0x160B0000  client  369819648  string             clipboardCopyType              clipboard
  0x160B0001  client  369819649  int                clipboardCopySize              clipboard
  0x170A0000  server  386531328  string             printerList                    printer
  0x170B0000  client  386596864  string    yes      printerList                    printer
  0x170B0001  client  386596865  string             printerTaskList                printer
  0x1B0A0000  server  453640192  int                cameraFPS                      camera
  0x1B0B0000  client  453705728  string    yes      cameraList                     camera
  0x1B0B0001  client  453705729  string             cameraResolutList              camera
  0x1B0B0002  client  453705730  string             cameraStateList                camera
  0x1B0B0003  client  453705731  string             cameraStreamFormat             camera
  0x1B0B0004  client  453705732  int                cameraFPS                      camera
  0x200A0000  server  537526272  string             preconnectBegin                session and connection
  0x200A0001  server  537526273  string             preconnectEnd                  session and connection
  0x200A0002  server  537526274  string             sessionChange                  session and connection
  0x200A0003  server  537526275  bool               displayFirstFrameOrReconnect   session and connection
  0x200A0004  server  537526276  json               clientDisconnectType           session and connection
  0x220A0000  server  571080704  string             serialMap                      serial port
  0x220B0000  client  571146240  string             serialOpen                     serial port
  0x220B0001  client  571146241  string             serialList                     serial port
  0x230A0000  server  587857920  string             twainOperationType             scanner (TWAIN)
  0x230A0001  server  587857921  string             twainOperationResult           scanner (TWAIN)
  0x230B0000  client  587923456  string             twainOperationType             scanner (TWAIN)
  0x230B0001  client  587923457  string             twainOperationResult           scanner (TWAIN)
  0x240A0000  server  604635136  string             pcscApiName                    smart card (PC/SC)
  0x240A0001  server  604635137  string    yes      pcscHookProcess                smart card (PC/SC)
  0x240B0000  client  604700672  string             pcscApiName                    smart card (PC/SC)
  0x260A0000  server  638189568  string             bypassAPPInfo                  bypass
  0x260A0001  server  638189569  string             bypassUIMessages               bypass
  0x260B0000  client  638255104  string             bypassAPPInfo                  bypass
  0x260B0001  client  638255105  string             bypassActivate                 bypass
  0x260B0002  client  638255106  string             bypassUIMessages               bypass
  0x270A0000  server  654966784  uint64_t           fileshareStartTime             file sharing
  0x270A0001  server  654966785  uint64_t           fileshareEndTime               file sharing
  0x270A0002  server  654966786  uint64_t           fileshareFileSize              file sharing
  0x270B0000  client  655032320  uint64_t           fileshareStartTime             file sharing
  0x270B0001  client  655032321  uint64_t           fileshareEndTime               file sharing
  0x270B0002  client  655032322  uint64_t           fileshareFileSize              file sharing
  0x280A0000  server  671744000  int                usbNumber                      USB
  0x280A0001  server  671744001  string             usbIRPPackage                  USB
  0x280B0000  client  671809536  string    yes      usbList                        USB
  0x280B0001  client  671809537  string    yes      usbInfo                        USB
  0x2F0A0000  server  789184512  string             OS                             system and base information
  0x2F0A0001  server  789184513  json               cpuUage                        system and base information
  0x2F0A0002  server  789184514  double             diskUage                       system and base information
  0x2F0A0003  server  789184515  double             memoryUage                     system and base information
  0x2F0A0004  server  789184516  string             connect                        system and base information
  0x2F0A0005  server  789184517  string             disconnect                     system and base information
  0x2F0A0006  server  789184518  string    yes      osEvent                        system and base information
  0x2F0A0007  server  789184519  string    yes      topNcpu                        system and base information
  0x2F0A0008  server  789184520  string    yes      topNmemory                     system and base information
  0x2F0A0009  server  789184521  string    yes      topNhandle                     system and base information
  0x2F0A000A  server  789184522  int                gpuUsage                       system and base information
  0x2F0A000B  server  789184523  string             agentVersion                   system and base information
  0x2F0A000C  server  789184524  json               serverDisconnectType           system and base information
  0x2F0A000D  server  789184525  int                metricsNum                     system and base information
  0x2F0A000E  server  789184526  string             updateMoxStatus                system and base information
  0x2F0B0000  client  789250048  string             OS                             system and base information
  0x2F0B0001  client  789250049  json               cpuUage                        system and base information
  0x2F0B0002  client  789250050  double             diskUage                       system and base information
  0x2F0B0003  client  789250051  double             memoryUage                     system and base information
  0x2F0B0004  client  789250052  string             connect                        system and base information
  0x2F0B0005  client  789250053  string             disconnect                     system and base information
  0x2F0B0006  client  789250054  string    yes      topNcpu                        system and base information
  0x2F0B0007  client  789250055  string    yes      topNmemory                     system and base information
  0x2F0B0008  client  789250056  string    yes      topNhandle                     system and base information
  0x2F0B0009  client  789250057  int                gpuUsage                       system and base information
  0x2F0B000A  client  789250058  int                clientRtt                      system and base information
  0x2F0B000B  client  789250059  string             clientVersion                  system and base information
  0x2F0B000C  client  789250060  json               clientAudioStallRate           system and base information
  0x2F0B000D  client  789250061  int                metricsNum                     system and base information
  0x310A0000  server  822738944  string             apiRedirApiType                API redirection
  0x310A0001  server  822738945  string             apiRedirHandshake              API redirection
  0x310B0000  client  822804480  string             apiRedirApiType                API redirection
  0x310B0001  client  822804481  string             apiRedirBlockTime              API redirection
  0x360A0000  server  906625024  int                rtsaEnable                     RTSA transport
  0x360A0001  server  906625025  int                rtsaSendIndex                  RTSA transport
  0x360A0002  server  906625026  int                rtsaAckIndex                   RTSA transport
  0x360A0003  server  906625027  int                rtsaVideoRtt                   RTSA transport
  0x360A0004  server  906625028  int                rtsaVideoSendDelta             RTSA transport
  0x360A0005  server  906625029  int                rtsaServerErrorCode            RTSA transport
  0x360B0000  client  906690560  int                rtsaClientSupport              RTSA transport
  0x360B0001  client  906690561  int                rtsaClientErrorCode            RTSA transport
  
  EVENT ID                          TYPE    PRIVATE  NAME
  VEVENT_DETECT_NETWORK_INFO        json             networkInfo
  VEVENT_MSG_PROCESS_SLOW           json             msgProcessSlow
  VEVENT_MSG_TRANS_CHANGE           json             msgTransChange
  VEVENT_RECORD_PROCESS_INFO        json             processInfo
  VEVENT_SERVER_IDT_PING_PONG_RTT   json             serverIdtPingPongRtt
  VEVENT_SERVER_RTSA_PING_PONG_RTT  json             serverRtsaPingPongRtt
  VEVENT_SERVER_TCP_PING_PONG_RTT   json             serverTcpPingPongRtt
  VMETRICS_CLIENT_BASEINFO          json             baseInfo
  VMETRICS_SERVER_BASEINFO          json             thirdPartySoftware
  VMETRICS_USB_DRIVER_ERROR         string           driverError
  nox_user_connect                  json             vmConnect
  nox_user_heart                    json             heartBeat
  nox_user_login                    json             vmLogin
  $ vmetrics catalogue | wc -l
  137

Options let some of them through, and all that are given must agree:

  $ vmetrics catalogue --group display --side client --type enum
  ID          SIDE    DECIMAL    TYPE  PRIVATE  NAME                   GROUP
  0x120B0006  client  302710790  enum           displayOriginalFormat  display
  0x120B0007  client  302710791  enum           displayDecodingFormat  display
  0x120B0008  client  302710792  enum           displayDecoderType     display
  $ vmetrics catalogue --group 0x2F --private
  ID          SIDE    DECIMAL    TYPE    PRIVATE  NAME        GROUP
  0x2F0A0006  server  789184518  string  yes      osEvent     system and base information
  0x2F0A0007  server  789184519  string  yes      topNcpu     system and base information
  0x2F0A0008  server  789184520  string  yes      topNmemory  system and base information
  0x2F0A0009  server  789184521  string  yes      topNhandle  system and base information
  0x2F0B0006  client  789250054  string  yes      topNcpu     system and base information
  0x2F0B0007  client  789250055  string  yes      topNmemory  system and base information
  0x2F0B0008  client  789250056  string  yes      topNhandle  system and base information
  $ vmetrics catalogue --group 2f --private --side server
  ID          SIDE    DECIMAL    TYPE    PRIVATE  NAME        GROUP
  0x2F0A0006  server  789184518  string  yes      osEvent     system and base information
  0x2F0A0007  server  789184519  string  yes      topNcpu     system and base information
  0x2F0A0008  server  789184520  string  yes      topNmemory  system and base information
  0x2F0A0009  server  789184521  string  yes      topNhandle  system and base information
  $ vmetrics catalogue --name fps
  ID          SIDE    DECIMAL    TYPE  PRIVATE  NAME        GROUP
  0x120A0001  server  302645249  int            displayFPS  display
  0x120B0001  client  302710785  int            displayFPS  display
  0x1B0A0000  server  453640192  int            cameraFPS   camera
  0x1B0B0004  client  453705732  int            cameraFPS   camera
  $ vmetrics catalogue --type string --public --name driver
  EVENT ID                   TYPE    PRIVATE  NAME
  VMETRICS_USB_DRIVER_ERROR  string           driverError
  $ vmetrics catalogue --name printerlist
  ID          SIDE    DECIMAL    TYPE    PRIVATE  NAME         GROUP
  0x170A0000  server  386531328  string           printerList  printer
  0x170B0000  client  386596864  string  yes      printerList  printer

An ID as a metrics line shows it, as the pages do, or the name of an event:

  $ vmetrics catalogue --id 302710785
  ID          SIDE    DECIMAL    TYPE  PRIVATE  NAME        GROUP
  0x120B0001  client  302710785  int            displayFPS  display
  $ vmetrics catalogue --id 0x120b0001
  ID          SIDE    DECIMAL    TYPE  PRIVATE  NAME        GROUP
  0x120B0001  client  302710785  int            displayFPS  display
  $ vmetrics catalogue --id nox_user_connect
  EVENT ID          TYPE  PRIVATE  NAME
  nox_user_connect  json           vmConnect

Nothing that matches is exit status 1:

  $ vmetrics catalogue --id 7
  [1]
  $ vmetrics catalogue --name displayFPS --private --format json
  []
  [1]
  $ vmetrics catalogue --group 0x99 --format csv
  eventId,hexadecimal,type,name,private,group,groupTitle,side
  [1]

For programs:

  $ vmetrics catalogue --name slow --format json
  [
  {"eventId":"VEVENT_MSG_PROCESS_SLOW","type":"json","name":"msgProcessSlow","private":"0"}
  ]
  $ vmetrics catalogue --group printer --format json
  [
  {"eventId":"386531328","hexadecimal":"0x170A0000","type":"string","name":"printerList","private":"0","group":"0x17","groupTitle":"printer","side":"server"},
  {"eventId":"386596864","hexadecimal":"0x170B0000","type":"string","name":"printerList","private":"1","group":"0x17","groupTitle":"printer","side":"client"},
  {"eventId":"386596865","hexadecimal":"0x170B0001","type":"string","name":"printerTaskList","private":"0","group":"0x17","groupTitle":"printer","side":"client"}
  ]
  $ vmetrics catalogue --name r --group 0x17 --format csv
  eventId,hexadecimal,type,name,private,group,groupTitle,side
  386531328,0x170A0000,string,printerList,0,0x17,printer,server
  386596864,0x170B0000,string,printerList,1,0x17,printer,client
  386596865,0x170B0001,string,printerTaskList,0,0x17,printer,client
  $ vmetrics catalogue --id VMETRICS_USB_DRIVER_ERROR --format csv
  eventId,hexadecimal,type,name,private,group,groupTitle,side
  VMETRICS_USB_DRIVER_ERROR,,string,driverError,0,,,

A page:

  $ vmetrics catalogue --private --side client --format markdown
  # Metrics
  
  A numeric ID is made of the group (bits 31 to 24), the side that reports the metric (bits 23 to 16:
  0x0B the client, 0x0A the server) and an index (bits 15 to 0). Records show it as a signed decimal
  text; its upper half is their `moduleId`. IDs that a host registers need not follow this.
  
  The name is the JSON key of the value; the value of a `json` metric takes the place of the whole
  object, so its name does not appear. Misspelt names are kept: receivers match on them.
  A private metric is rendered like any other; the flag tells those who collect.
  
  ## Numeric IDs: 7 metrics
  
  ### 0x17: printer
  
  | ID | Decimal | Type | Name | Private |
  |---|---|---|---|---|
  | 0x170B0000 | 386596864 | string | printerList | yes |
  
  ### 0x1B: camera
  
  | ID | Decimal | Type | Name | Private |
  |---|---|---|---|---|
  | 0x1B0B0000 | 453705728 | string | cameraList | yes |
  
  ### 0x28: USB
  
  | ID | Decimal | Type | Name | Private |
  |---|---|---|---|---|
  | 0x280B0000 | 671809536 | string | usbList | yes |
  | 0x280B0001 | 671809537 | string | usbInfo | yes |
  
  ### 0x2F: system and base information
  
  | ID | Decimal | Type | Name | Private |
  |---|---|---|---|---|
  | 0x2F0B0006 | 789250054 | string | topNcpu | yes |
  | 0x2F0B0007 | 789250055 | string | topNmemory | yes |
  | 0x2F0B0008 | 789250056 | string | topNhandle | yes |
  $ vmetrics catalogue --id nox_user_login --format markdown
  # Metrics
  
  A numeric ID is made of the group (bits 31 to 24), the side that reports the metric (bits 23 to 16:
  0x0B the client, 0x0A the server) and an index (bits 15 to 0). Records show it as a signed decimal
  text; its upper half is their `moduleId`. IDs that a host registers need not follow this.
  
  The name is the JSON key of the value; the value of a `json` metric takes the place of the whole
  object, so its name does not appear. Misspelt names are kept: receivers match on them.
  A private metric is rendered like any other; the flag tells those who collect.
  
  ## Event IDs: 1 metric
  
  | Event ID | Type | Name | Private |
  |---|---|---|---|
  | nox_user_login | json | vmLogin |  |

Metrics of a product, blank lines and comments passed over; a group that has no title, a side that
has no name, and what would not go into a table as it is:

  $ cat >viewer.def <<'EOF'
  > # The viewer's own.
  > 
  > 302645266;int;myMetric;0
  > 1073807361;string;a|b "c", *d*;2
  > -5;json;negative;1
  > EOF
  $ printf 'viewer_\033[2Jopened;json;opened;0\r\n' >events.def
  $ vmetrics catalogue --definitions viewer.def --name myMetric
  ID          SIDE    DECIMAL    TYPE  PRIVATE  NAME      GROUP
  0x120A0012  server  302645266  int            myMetric  display
  $ vmetrics catalogue --definitions viewer.def --event-definitions events.def --name e --public \
  >   --format csv | tail -n 4
  VMETRICS_USB_DRIVER_ERROR,,string,driverError,0,,,
  nox_user_connect,,json,vmConnect,0,,,
  nox_user_heart,,json,heartBeat,0,,,
  viewer_\u001b[2Jopened,,json,opened,0,,,
  $ vmetrics catalogue --definitions viewer.def --name '|'
  ID          SIDE  DECIMAL     TYPE    PRIVATE  NAME          GROUP
  0x40010001  0x01  1073807361  string  2        a|b "c", *d*  0x40
  $ vmetrics catalogue --definitions viewer.def --id -5
  ID          SIDE  DECIMAL  TYPE  PRIVATE  NAME      GROUP
  0xFFFFFFFB  0xFF  -5       json  yes      negative  0xFF
  $ vmetrics catalogue --definitions viewer.def --id 0xFFFFFFFB --format json
  [
  {"eventId":"-5","hexadecimal":"0xFFFFFFFB","type":"json","name":"negative","private":"1","group":"0xFF"}
  ]
  $ vmetrics catalogue --definitions viewer.def --name '|' --format json
  [
  {"eventId":"1073807361","hexadecimal":"0x40010001","type":"string","name":"a|b \"c\", *d*","private":"2","group":"0x40"}
  ]
  $ vmetrics catalogue --definitions viewer.def --name '|' --format csv
  eventId,hexadecimal,type,name,private,group,groupTitle,side
  1073807361,0x40010001,string,"a|b ""c"", *d*",2,0x40,,
  $ vmetrics catalogue --definitions viewer.def --name '|' --format markdown | tail -n 5
  ### 0x40
  
  | ID | Decimal | Type | Name | Private |
  |---|---|---|---|---|
  | 0x40010001 | 1073807361 | string | a\|b "c", \*d\* | 2 |
  $ vmetrics catalogue --definitions viewer.def --format markdown | grep '^#' | tail -n 4
  ### 0x36: RTSA transport
  ### 0x40
  ### 0xFF
  ## Event IDs: 13 metrics
  $ vmetrics catalogue --event-definitions events.def --name opened
  EVENT ID                TYPE  PRIVATE  NAME
  viewer_\u001b[2Jopened  json           opened
  $ vmetrics catalogue --event-definitions events.def --name opened --format json
  [
  {"eventId":"viewer_\u001b[2Jopened","type":"json","name":"opened","private":"0"}
  ]

A name that is too wide for any column leaves the others in theirs:

  $ printf '302645266;int;n%060d;0\n' 1 >wide.def
  $ vmetrics catalogue --definitions wide.def --group display --side server --name n --type int
  ID          SIDE    DECIMAL    TYPE  PRIVATE  NAME                           GROUP
  0x120A0000  server  302645248  int            displayOSRenderingDelay        display
  0x120A0003  server  302645251  int            displayEncodingDelay           display
  0x120A0004  server  302645252  int            displayFlowControl             display
  0x120A000A  server  302645258  int            displayNumberOfVideoEncoders   display
  0x120A000B  server  302645259  int            displayEnableFullScreenVideo   display
  0x120A000C  server  302645260  int            displayEnable10Bits            display
  0x120A000D  server  302645261  int            displayEnableYuv444            display
  0x120A000E  server  302645262  int            displayEnableColorType         display
  0x120A000F  server  302645263  int            displayEnableChangeResolution  display
  0x120A0010  server  302645264  int            displayEnableAdaptive          display
  0x120A0012  server  302645266  int            n000000000000000000000000000000000000000000000000000000000001  display

Definitions from standard input, from several files, from a compressed one, with a byte order mark:

  $ gzip <viewer.def | vmetrics catalogue --definitions - --name myMetric --format csv
  eventId,hexadecimal,type,name,private,group,groupTitle,side
  302645266,0x120A0012,int,myMetric,0,0x12,display,server
  $ printf '\357\273\277302645267;int;marked;0' >marked.def
  $ vmetrics catalogue --definitions viewer.def --definitions marked.def --name m --group display \
  >   --side server --type int --format csv | grep -i -e my -e marked
  302645266,0x120A0012,int,myMetric,0,0x12,display,server
  302645267,0x120A0013,int,marked,0,0x12,display,server

A line that is refused is told, the others count; then the exit status is 2:

  $ cat >bad.def <<'EOF'
  > 302645266;int;first;0
  > 302645266;int;second;0
  > 302645249;int;frames;0
  > 0x120A0013;int;hexadecimal;0
  > 302645268;int;0
  > 302645269;int;last;0
  > EOF
  $ vmetrics catalogue --definitions bad.def --id 302645269
  vmetrics: bad.def:2: the ID 302645266 (0x120A0012) is taken by first (int)
  vmetrics: bad.def:3: the ID 302645249 (0x120A0001) is taken by displayFPS (int)
  vmetrics: bad.def:4: the ID 0x120A0013 is not decimal: write 302645267
  vmetrics: bad.def:5: 3 of the four fields "ID;type;name;private", empty ones not counted
  ID          SIDE    DECIMAL    TYPE  PRIVATE  NAME  GROUP
  0x120A0015  server  302645269  int            last  display
  [2]
  $ head -c 5000000 /dev/zero | tr '\0' x >long.def
  $ vmetrics catalogue --definitions long.def --id 302645269
  vmetrics: long.def:1: the line has more than 4194304 bytes
  [2]
  $ printf 'nox_user_connect;json;again;0\n' >taken.def
  $ vmetrics catalogue --event-definitions taken.def --id nox_user_connect --format csv
  vmetrics: taken.def:1: the event ID nox_user_connect is taken by vmConnect (json)
  eventId,hexadecimal,type,name,private,group,groupTitle,side
  nox_user_connect,,json,vmConnect,0,,,
  [2]

Without a file that it was told to read it says nothing:

  $ vmetrics catalogue --definitions nowhere.def
  vmetrics: nowhere.def: No such file or directory
  [2]
  $ vmetrics catalogue --definitions .
  vmetrics: .: Is a directory
  [2]
  $ head -c 30 viewer.def | gzip | head -c 25 | vmetrics catalogue --definitions - --id 1
  vmetrics: standard input: the compressed data ends too early
  [2]

Wrong usage:

  $ vmetrics catalogue --side left
  vmetrics: --side: "left" is none of client, server; see vmetrics catalogue --help
  [2]
  $ vmetrics catalogue --format yaml
  vmetrics: --format: "yaml" is none of table, json, csv, markdown; see vmetrics catalogue --help
  [2]
  $ vmetrics catalogue --private --public
  vmetrics: --private excludes --public; see vmetrics catalogue --help
  [2]
  $ vmetrics catalogue --colour
  vmetrics: not understood: --colour; see vmetrics catalogue --help
  [2]
  $ vmetrics catalogue display
  vmetrics: not understood: display; see vmetrics catalogue --help
  [2]
  $ vmetrics catalogue --name
  vmetrics: --name needs a value; see vmetrics catalogue --help
  [2]

A result that cannot be written is trouble:

  $ vmetrics catalogue >/dev/full
  vmetrics: standard output: No space left on device
  [2]

On a narrow terminal the columns leave that the ID tells already; colours are for terminals:

  $ on() {
  >   TERM=xterm script -qec "stty cols $1; vmetrics catalogue $2" /dev/null </dev/null |
  >     tr -d '\r' | sed 's/\x1b/ESC/g'
  > }
  $ on 200 '--id 0x170B0000'
  ESC[1mID          SIDE    DECIMAL    TYPE    PRIVATE  NAME         GROUPESC[0m
  0x170B0000  client  386596864  string  yes      printerList  printer
  $ on 80 '--id 0x170B0000'
  ESC[1mID          SIDE    DECIMAL    TYPE    PRIVATE  NAME         GROUPESC[0m
  0x170B0000  client  386596864  string  yes      printerList  printer
  $ on 60 '--id 0x170B0000'
  ESC[1mID          SIDE    DECIMAL    TYPE    PRIVATE  NAMEESC[0m
  0x170B0000  client  386596864  string  yes      printerList
  $ on 40 '--id 0x170B0000'
  ESC[1mID          TYPE    PRIVATE  NAMEESC[0m
  0x170B0000  string  yes      printerList
  $ NO_COLOR=1 on 60 '--type bool'
  ID          TYPE  PRIVATE  NAME
  0x200A0003  bool           displayFirstFrameOrReconnect

  $ vmetrics catalogue --help
  Shows the metrics that the library knows
  Usage: vmetrics catalogue [OPTIONS] [SUBCOMMAND]
  
  Options:
    -h,--help                   Print this help message and exit
    --group GROUP               The group: its number in hexadecimal, or part of
                                its title, "display"
    --side SIDE                 Who reports the metric: client or server
    --type TYPE                 The type of the value, as "int" or "json"
    --private                   Private metrics
    --public                    Metrics that are not private
    --name TEXT                 Part of the name; capitals do not matter
    --id ID                     The ID: in decimal, in hexadecimal with 0x in
                                front, an event ID
    --definitions FILE          Add the metrics of FILE, "ID;type;name;private" a
                                line; may be repeated
    --event-definitions FILE    The same for metrics with an event ID
    --format FORMAT             table, json, csv, markdown; without this option
                                table
  
  Subcommands:
    lint                        Tells which definitions are refused or surprise
  
  Exit status: 0; 1 if no metric matches all options; 2 in trouble.
  
  Example: what the server says about the display
    vmetrics catalogue --group display --side server
